# A page with the lists that are made of the chief header, which is read first:
#
#   awk -f docs/doxygen/lists.awk Sources/Shared/QUVARDBS1C/QUVARDBS1C.h README.md
#
# A list is what is between the lines <!-- made of the header: NAME --> and <!-- end -->.

function complain(text) {
  print FILENAME ": " text >"/dev/stderr"
  failed = 1
}

# The chief header.
NR == FNR {
  if (/^\/\/\/ @defgroup /) {
    sub(/^\/\/\/ @defgroup [a-z_]+ /, "")
    sub(/ *\(.*/, "")
    titles[++topicCount] = $0
  } else if (/^\/\/\/ Accuracy: /) {
    accuracy = substr($0, 15)
  } else if (accuracy != "" && !accuracyIsWhole) {
    if (/^\/\/\/ [^@]/) accuracy = accuracy substr($0, 4)
    else accuracyIsWhole = 1
  }
  if (/^QUVARDBS1C_API /) {
    name = $0
    sub(/\(.*/, "", name)
    sub(/.*[ *]/, "", name)
    link = "[`" name "`](FOLDER" FILENAME "#L" FNR ")"
    routines[topicCount] = routines[topicCount] (routines[topicCount] == "" ? "" : ", ") link
    if (accuracy != "") {
      accuracy = toupper(substr(accuracy, 1, 1)) substr(accuracy, 2)
      accuracies = accuracies "\n| " link " | " accuracy " |"
    }
    accuracy = ""
    accuracyIsWhole = 0
  }
  next
}

# The page.
FNR == 1 {
  folder = FILENAME ~ /^docs\// ? "../" : ""
  lists["topics"] = "| Topic | Routines |\n| --- | --- |"
  for (i = 1; i <= topicCount; ++i) {
    lists["topics"] = lists["topics"] "\n| " titles[i] " | " routines[i] " |"
  }
  lists["accuracy"] = "| Routine | Accuracy |\n| --- | --- |" accuracies
}

/^<!-- end -->$/ { inList = 0 }
!inList { print }

/^<!-- made of the header: [a-z]+ -->$/ {
  if (!($6 in lists)) complain("no list is named " $6)
  list = lists[$6]
  gsub(/FOLDER/, folder, list)
  print "\n" list "\n"
  inList = 1
}

END {
  if (inList) complain("a list without its end")
  exit failed
}
