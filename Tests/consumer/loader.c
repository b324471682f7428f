/* Loads a library at run time and calls it. */
#include <dlfcn.h>
#include <stdio.h>
#include <string.h>

int main(int count, char** arguments) {
  void* const library = count == 2 ? dlopen(arguments[1], RTLD_NOW | RTLD_LOCAL) : NULL;
  void* const address = library != NULL ? dlsym(library, "Fact") : NULL;
  double (*factorial)(int) = NULL;
  if (address == NULL) {
    fprintf(stderr, "%s\n", count == 2 ? dlerror() : "usage: loader LIBRARY");
    return 1;
  }
  memcpy(&factorial, &address, sizeof factorial);
  puts(factorial(5) > 119 && factorial(5) < 121 ? "right" : "wrong");
  return 0;
}
