#!/usr/bin/awk -f
# What Doxygen reads in place of a header or a page. On a code host the links of a page lead to files,
# headings and lines; here they lead to the same places of the reference, and a link that leads out of
# the reference is left as text.

function slug(heading) {
  heading = tolower(heading)
  gsub(/[^a-z0-9 _-]/, "", heading)
  gsub(/ /, "-", heading)
  return heading
}

function labelOf(page, anchor) {
  if (anchor != "") return page "-" anchor
  return page == "README" ? "index" : page
}

# A link of Markdown as a link in the reference.
function linkOf(text, target,    hash, anchor, name) {
  if (target ~ /^[a-z]+:/) return "[" text "](" target ")"
  hash = index(target "#", "#")
  anchor = substr(target, hash + 1)
  target = substr(target, 1, hash - 1)
  if (target == "") return "[" text "](@ref " labelOf(page, anchor) ")"

  if (target !~ /^\.\.\//) target = folder target
  sub(/^\.\.\//, "", target)
  name = target
  sub(/.*\//, "", name)
  if (target ~ /^(README|docs\/[A-Za-z0-9_-]+)\.md$/) {
    sub(/\.md$/, "", name)
    return "[" text "](@ref " labelOf(name, anchor) ")"
  }
  if (target ~ /^Sources\/Shared\/.*\.h$/) {
    gsub(/`/, "", text)
    return "[" text "](@ref " (anchor == "" ? name : text) ")"
  }
  return text
}

# A line whose code holds no single quotation mark within single backquotes: there the mark would end
# the code.
function withSafeCode(line,    out, code) {
  while (match(line, /`[^`]+`/)) {
    code = substr(line, RSTART, RLENGTH)
    if (index(code, "'")) code = "`" code "`"
    out = out substr(line, 1, RSTART - 1) code
    line = substr(line, RSTART + RLENGTH)
  }
  return out line
}

FNR == 1 {
  isPage = FILENAME ~ /\.md$/
  page = FILENAME
  sub(/.*\//, "", page)
  sub(/\.md$/, "", page)
  folder = page == "README" ? "" : "docs/"
}

# These are paragraphs with a title.
!isPage {
  sub(/^\/\/\/ Method:/, "/// @titled{Method}")
  sub(/^\/\/\/ Accuracy:/, "/// @titled{Accuracy}")
  sub(/^\/\/\/ @b Example:/, "/// @titled{Example}")
  print
  next
}

/^```/ { inCode = !inCode }
inCode || /^    / {
  print
  next
}

/^#/ {
  heading = $0
  sub(/^#+ */, "", heading)
  if ($0 !~ /^# /) $0 = $0 " {#" page "-" slug(heading) "}"
  else if (page != "README") $0 = $0 " {#" page "}"
}

{
  out = ""
  while (match($0, /\[[^]]+\]\([^)]+\)/)) {
    link = substr($0, RSTART, RLENGTH)
    between = index(link, "](")
    isImage = RSTART > 1 && substr($0, RSTART - 1, 1) == "!"
    out = out substr($0, 1, RSTART - 1)
    $0 = substr($0, RSTART + RLENGTH)
    if (!isImage) {
      link = linkOf(substr(link, 2, between - 2),
                    substr(link, between + 2, length(link) - between - 2))
    }
    out = out link
  }
  print withSafeCode(out $0)
}
