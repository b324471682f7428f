# The lines of a language's code blocks in pages, each after the number of its block and a tab:
#
#   awk -v language=LANGUAGE [-v start=PATTERN] -f blocks.awk PAGE...
#
# With a pattern, only the blocks whose first line matches it.
/^```/ { inside = !inside && $0 == "```" language; first = inside; next }
first { first = 0; inside = $0 ~ start; count += inside }
inside { print count "\t" $0 }
