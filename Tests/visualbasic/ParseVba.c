// Parses files by the grammar of Visual Basic for Applications and prints the lines with errors.
#include <stdio.h>
#include <string.h>
#include <tree_sitter/api.h>

const TSLanguage* tree_sitter_vba(void);

static int printErrors(const char* file, TSNode node) {
  if (ts_node_is_missing(node) || strcmp(ts_node_type(node), "ERROR") == 0) {
    printf("%s:%u: not in the grammar\n", file, ts_node_start_point(node).row + 1);
    return 1;
  }
  int errors = 0;
  for (uint32_t i = 0; i < ts_node_child_count(node); ++i) {
    errors += printErrors(file, ts_node_child(node, i));
  }
  return errors;
}

int main(int count, char** files) {
  static char text[1 << 20];
  int errors = 0;
  TSParser* const parser = ts_parser_new();
  if (!ts_parser_set_language(parser, tree_sitter_vba())) return 2;
  for (int i = 1; i < count; ++i) {
    FILE* const file = fopen(files[i], "rb");
    if (file == NULL) return 2;
    const size_t size = fread(text, 1, sizeof text, file);
    fclose(file);
    TSTree* const tree = ts_parser_parse_string(parser, NULL, text, (uint32_t)size);
    errors += printErrors(files[i], ts_tree_root_node(tree));
    ts_tree_delete(tree);
  }
  ts_parser_delete(parser);
  return errors != 0;
}
