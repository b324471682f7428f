# Compares the declarations for Visual Basic with those of the headers: names, number, kinds and order
# of all arguments, and results. Prints what differs, and ends with status 1 then.
#
#   awk -v dialect=net -f Declarations.awk HEADER SIBLINGS_HEADER QUVARDBS1C.vb
#   awk -v dialect=applications -f Declarations.awk HEADER SIBLINGS_HEADER QUVARDBS1C.bas
#
# The headers have been through the C preprocessor.

# What stands for a type of C in places: what is declared to callers, what a function of the file calls
# (private), and such functions. $ is the argument's name.
function stands(places, type, argument, result,    place, n) {
  for (n = split(places, place, " "); n > 0; --n) {
    arguments[place[n], type] = argument
    results[place[n], type] = result
  }
}

BEGIN {
  if (dialect == "net") {
    text = "<MarshalAs(LPWStr)> ByVal $ As String"
    stands("Public", "BSTR", text,
           "<MarshalAs(CustomMarshaler, MarshalTypeRef:=GetType(HostText))> String")
    stands("Private", "BSTR", "ByVal $ As IntPtr", "IntPtr")
    stands("Public Private", "BSTR*", "ByRef $ As IntPtr")
    stands("Private", "const QUVARDUnit16*", text)
    stands("function", "BSTR*", "ByVal $ As String()")
    stands("Public", "HostBool", "ByVal $ As HostBool", "Boolean")
    integer = "Integer"
    # The one that writes to its text, where a String does not do, and the one that makes an array.
    needFunctions = "^(VB_Replace|VB_SetFormat)$"
  } else {
    safety = "PtrSafe "
    stands("Public Private", "BSTR", "ByVal $ As LongPtr", "LongPtr")
    stands("Public Private", "BSTR*", "ByRef $ As LongPtr")
    stands("Public Private", "const QUVARDUnit16*", "ByVal $ As LongPtr")
    stands("Public Private", "size_t", "", "LongPtr")
    stands("Public Private", "HostBool", "ByVal $ As Long", "Long")
    stands("function", "BSTR*", "ByRef $() As String")
    stands("function", "HostBool", "ByVal $ As Boolean", "Boolean")
    integer = "Long"
    # Texts and flags are handed on by a function.
    needFunctions = "^VB_SetFormat$"
    typesThatNeedFunctions = "^(BSTR|HostBool)$"
  }
  stands("function", "BSTR", "ByVal $ As String", "String")
  stands("Public Private function", "int32_t", "ByVal $ As " integer, integer)
  stands("Public Private function", "int32_t*", "ByRef $ As " integer)
  stands("Public Private function", "double", "ByVal $ As Double", "Double")
  stands("Public Private function", "double*", "ByRef $ As Double")
}

FNR == 1 { ++file }
file < 3 { header[file] = header[file] " " $0; next }

# Hosts of applications read files in an encoding of their own.
dialect != "net" && /[^ -~\t]/ { complain("line " FNR " has more than ASCII") }

# Without comments, and each line with those that continue it.
{
  sub(/'.*/, "")
  line = line " " $0
  gsub(/[[:space:]]+/, " ", line)
  gsub(/^ | $/, "", line)
  if (sub(/ _$/, "", line) || gsub(/\(/, "(", line) > gsub(/\)/, ")", line)) next
  gsub(/\( /, "(", line)
  gsub(/ \)/, ")", line)
  take(line)
  line = ""
}

function take(line,    name, start) {
  if (line ~ /^(Public|Private) (Function|Sub) /) procedures = 1
  if (match(line, / Declare (PtrSafe )?[A-Za-z]+ [A-Za-z0-9_]+ Lib "[^"]*"/)) {
    # Hosts of applications want declarations before the first procedure.
    if (dialect != "net" && procedures) complain("a declaration after a procedure: " line)
    start = substr(line, 1, RSTART + RLENGTH - 1)
    line = substr(line, RSTART + RLENGTH)
    library = start
    gsub(/^.* Lib "|"$/, "", library)
    sub(/ Lib .*/, "", start)
    match(start, /[A-Za-z0-9_]+$/)
    name = substr(start, RSTART)
    start = substr(start, 1, RSTART - 1)
    if (match(line, /^ Alias "[^"]*"/)) {
      name = substr(line, 9, RLENGTH - 9)
      line = substr(line, RLENGTH + 1)
    }
    sub(/^ /, "", line)
    keep(actual, library " " name, start name line)
  } else if (match(line, /^Public (Function|Sub) [A-Za-z0-9_]+\(/)) {
    name = substr(line, 1, RLENGTH - 1)
    sub(/.* /, "", name)
    gsub(/, Optional [^,)]*/, "", line)
    keep(actual, "function " name, line)
  }
}

# What is declared twice is there twice.
function keep(table, key, declaration) {
  keys[key]
  table[key] = table[key] (table[key] == "" ? "" : " and ") declaration
}

function complain(text) {
  print FILENAME ": " text
  failed = 1
}

# Reads the next declaration of a header: its result, name and arguments.
function readRoutine(which,    declaration, list, i) {
  if (!match(header[which], /"default"\)\)\)[^;]*;/)) return 0
  declaration = substr(header[which], RSTART + 12, RLENGTH - 13)
  header[which] = substr(header[which], RSTART + RLENGTH)
  gsub(/[[:space:]]+/, " ", declaration)
  sub(/\) ?$/, "", declaration)
  match(declaration, /[A-Za-z0-9_]+\(/)
  routine = substr(declaration, RSTART, RLENGTH - 1)
  result = substr(declaration, 1, RSTART - 1)
  gsub(/^ | $/, "", result)
  declaration = substr(declaration, RSTART + RLENGTH)
  needsFunction = routine ~ needFunctions || (typesThatNeedFunctions && result ~ typesThatNeedFunctions)
  count = declaration == "void" ? 0 : split(declaration, list, ",")
  for (i = 1; i <= count; ++i) {
    match(list[i], /[A-Za-z0-9_]+ ?$/)
    names[i] = substr(list[i], RSTART, RLENGTH)
    types[i] = substr(list[i], 1, RSTART - 1)
    gsub(/^ | $/, "", names[i])
    gsub(/^ | $/, "", types[i])
    if (names[i] == "to") names[i] = "to_"  # "To" is a word of the language
    if (typesThatNeedFunctions && types[i] ~ typesThatNeedFunctions) needsFunction = 1
  }
  return 1
}

# Its declaration in a place.
function declared(place, words,    i, argument) {
  words = words (result == "void" ? "Sub " : "Function ") routine "("
  for (i = 1; i <= count; ++i) {
    argument = arguments[place, types[i]]
    if (argument == "") argument = "nothing for " types[i]
    sub(/\$/, names[i], argument)
    words = words (i > 1 ? ", " : "") argument
  }
  return words ")" (result == "void" ? "" : " As " results[place, result])
}

END {
  while (readRoutine(1)) {
    ++routines
    place = needsFunction ? "Private" : "Public"
    keep(expected, "QUVARDBS1C.dll " routine, declared(place, place " Declare " safety))
    if (needsFunction) keep(expected, "function " routine, declared("function", "Public "))
    exported[routine]
  }
  while (readRoutine(2)) {  # of these, a file declares what its own functions need
    if (("QUVARDCR1C.dll " routine) in actual)
      keep(expected, "QUVARDCR1C.dll " routine, declared("Private", "Private Declare " safety))
  }
  if (routines == 0) complain("no routine in the header")
  for (key in keys) {
    if (key ~ /^function / && !(substr(key, 10) in exported)) continue  # a helper
    if (key !~ /^function |^QUVARDBS1C.dll |^QUVARDCR1C.dll /) continue
    if (actual[key] != expected[key])
      complain(key "\n  expected " expected[key] "\n  actual   " actual[key])
  }
  exit failed
}
