#!/bin/sh
# What Doxygen reads in place of a header or a page.
case $1 in
  # In a contract these are paragraphs with a title.
  *.h | *.hpp) exec sed -E 's,^/// (@b )?(Method|Accuracy|Example):,/// @titled{\2},' "$1" ;;
esac
# A link to a file that is not in the reference becomes text. Doxygen knows no code in the text of a link,
# no heading of a page that it leads to, and no single quotation mark between single backquotes.
# shellcheck disable=SC2016
sed -E -e 's,\[([^]]*)\]\((\.\./)*(Sources|Tests|Hosts|Benchmarks|Examples|C[A-Z]+\.md|S[A-Z]+\.md)[^)]*\),\1,g' \
  -e 's,\[`([^`]*)`\],[\1],g' -e 's,(\]\([^)]*\.md)#[^)]*,\1,g' "$1" |
  awk -F '`' -v OFS='`' '{ for (i = 2; i < NF; i += 2) if ($i ~ /\047/) $i = "`" $i "`"; print }'
