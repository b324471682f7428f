# Prints the lines of the code blocks in a language, each after the number of its block and a tab:
#
#   awk -v language=LANGUAGE [-v start=PATTERN] -f blocks.awk PAGE...
#
# With a pattern: only blocks whose first line matches it.
/^```/ { inside = !inside && $0 == "```" language; first = inside; next }
first { first = 0; inside = $0 ~ start; count += inside }
inside { print count "\t" $0 }
