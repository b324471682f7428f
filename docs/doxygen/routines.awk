# Whether each exported routine is in the reference, with a contract and an example, and is defined in
# a file that the title of its topic names. Reads names (a line "NAME example", or "NAME" alone where
# no example is asked for), the headers, the sources and the pages of the topics.

function complain(text) {
  print text
  failed = 1
}

# The name in front of the first parenthesis of a declaration.
function nameIn(line) {
  sub(/\(.*/, "", line)
  sub(/.*[ *&]/, "", line)
  return line
}

FILENAME ~ /\.names$/ {
  ++exported[$1]
  if ($2 != "") needsExample[$1] = 1
  next
}

FILENAME ~ /\.h$/ && /^\/\/\/ @defgroup / {
  files = $0
  sub(/.*\(/, "", files)
  sub(/\).*/, "", files)
}
FILENAME ~ /\.h$/ && /^QUVARD[A-Z0-9]+_API / { filesOf[nameIn($0)] = files }

# A definition begins its line, and its return type may be in front of it.
FILENAME ~ /\.cpp$/ && /^[A-Za-z].*\(/ {
  file = FILENAME
  sub(/.*\//, "", file)
  sub(/\.cpp$/, "", file)
  definedIn[nameIn($0), file] = 1
}

FILENAME ~ /\.html$/ && /^<h2 class="memtitle">/ {
  name = substr($0, index($0, "</span>") + 7)
  sub(/\(\).*/, "", name)
  ++shown[name]
  isContract = 0
}
FILENAME ~ /\.html$/ && /<div class="memdoc">/ { isContract = 1 }
FILENAME ~ /\.html$/ && isContract && /^<p *>[^ ]/ {
  ++contracts[name]
  isContract = 0
}
FILENAME ~ /\.html$/ && /<dt>Example<\/dt><dd><code>/ { ++examples[name] }

END {
  for (name in exported) {
    count = exported[name]
    if (shown[name] < count) complain("Not in the reference: " name)
    else if (contracts[name] < count) complain("Without a contract in the reference: " name)
    else if (needsExample[name] && examples[name] < count) {
      complain("Without an example in the reference: " name)
    }
    isDefined = 0
    fileCount = split(filesOf[name], stems, /, */)
    for (i = 1; i <= fileCount; ++i) {
      sub(/.*\//, "", stems[i])
      if ((name, stems[i]) in definedIn) isDefined = 1
    }
    if (!isDefined) {
      complain("Not defined in a file that its topic's title names (" filesOf[name] "): " name)
    }
  }
  for (name in shown) {
    if (!(name in exported)) complain("In the reference, and not exported: " name)
  }
  exit failed
}
