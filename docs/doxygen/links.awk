# Dead links of web pages, of what leads to these (the tree, the menus, the search) and of Markdown
# pages. Reads first a list of all files and folders, then the pages, all by paths from one folder.
# Links to other hosts are not followed.

# The path of a link's target, from the folder of its page.
function pathOf(path, target) {
  if (target == "") return path
  if (!sub(/\/[^\/]*$/, "/", path)) path = ""
  path = path target
  while (sub(/[^\/]+\/\.\.\//, "", path)) continue
  gsub(/\/\.\//, "/", path)
  sub(/^\.\//, "", path)
  sub(/\/$/, "", path)
  return path
}

function note(target) {
  if (target ~ /^(https?:|mailto:|javascript:)/ || target == "") return
  if (!((FILENAME, target) in seen)) {
    seen[FILENAME, target] = 1
    from[++count] = FILENAME
    to[count] = target
  }
}

# Notes what follows the first `front` characters of each match in the line, without the last `back`.
function noteAll(line, pattern, front, back) {
  while (match(line, pattern)) {
    note(substr(line, RSTART + front, RLENGTH - front - back))
    line = substr(line, RSTART + RLENGTH)
  }
}

function linesOf(path,    lines, line) {
  if (!(path in lineCount)) {
    while ((getline line < path) > 0) ++lines
    close(path)
    lineCount[path] = lines + 0
  }
  return lineCount[path]
}

NR == FNR {
  exists[$0] = 1
  next
}

FILENAME ~ /\.js$/ {
  noteAll($0, "[\"'][^\"' ]*[A-Za-z0-9_-][.]html(#[^\"']*)?[\"']", 1, 1)
  next
}

FILENAME ~ /\.md$/ && /^```/ { inCode = !inCode }
FILENAME ~ /\.md$/ && (inCode || /^    /) { next }

FILENAME ~ /\.md$/ && /^#/ {
  heading = tolower($0)
  sub(/^#+ */, "", heading)
  gsub(/[^a-z0-9 _-]/, "", heading)
  gsub(/ /, "-", heading)
  anchors[FILENAME "#" heading] = 1
}
FILENAME ~ /\.md$/ {
  line = $0
  gsub(/`[^`]*`/, "", line)
  noteAll(line, "\\]\\([^) ]*\\)", 2, 1)
}

{
  noteAll($0, "href=\"[^\"]*\"", 6, 1)
  noteAll($0, "src=\"[^\"]*\"", 5, 1)
  noteAll($0, "data=\"[^\"]*\"", 6, 1)
  line = $0
  while (match(line, /(id|name)="[^"]*"/)) {
    anchor = substr(line, RSTART, RLENGTH - 1)
    sub(/.*"/, "", anchor)
    anchors[FILENAME "#" anchor] = 1
    line = substr(line, RSTART + RLENGTH)
  }
}

END {
  if (count == 0) {
    print "No link was found."
    exit 1
  }
  for (i = 1; i <= count; ++i) {
    hash = index(to[i] "#", "#")
    anchor = substr(to[i], hash + 1)
    path = pathOf(from[i], substr(to[i], 1, hash - 1))
    isAlive = path in exists || path == ""
    if (isAlive && anchor ~ /^L[0-9]+$/) isAlive = linesOf(path) >= substr(anchor, 2) + 0
    else if (isAlive && anchor != "") isAlive = (path "#" anchor) in anchors
    if (isAlive) continue
    print "Dead link in " from[i] ": " to[i]
    failed = 1
  }
  exit failed
}
