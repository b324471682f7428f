#!/usr/bin/env bash
# Checks from the file of a library that it is hardened as cmake/CompileOptions.cmake says:
#
#   hardening.sh LIBRARY
#
# From the environment: READELF and OBJDUMP.
set -euo pipefail
library=$1
status=0

fault() {
  echo "$library: $1"
  [ -z "${2:-}" ] || head -n 5 <<<"$2"
  status=1
}

header=$("$READELF" -W --file-header --program-headers --dynamic --dyn-syms "$library")
has() { grep -qE -- "$1" <<<"$header"; }

has 'GNU_RELRO' || fault "relocated data stays writable (-z relro)"
has '\(FLAGS\).*BIND_NOW' || fault "functions are bound at their first call (-z now)"
has 'GNU_STACK.* RW ' || fault "the stack is executable (-z noexecstack)"
! has 'TEXTREL' || fault "code is relocated (-z text)"
# The sibling need not have an array on the stack or a copy into one.
if [[ $library == *QUVARDBS1C.dll ]]; then
  has ' UND __stack_chk_fail' || fault "no stack protector (-fstack-protector-strong)"
  has ' UND __[a-z]+_chk([ @]|$)' || fault "no copy is checked (_FORTIFY_SOURCE)"
fi

if has 'Machine:.*X86-64'; then
  code=$("$OBJDUMP" --disassemble --no-show-raw-insn "$library")
  # With probes, no step is larger than a page.
  frames=$(awk '/>:$/ { name = $2 }
    /sub +\$0x[0-9a-f][0-9a-f][0-9a-f][0-9a-f]+,%rsp/ && !/\$0x1000,/ { print name, $NF }' <<<"$code")
  [ -z "$frames" ] || fault "frames without probes (-fstack-clash-protection):" "$frames"
  # An exported function is called through a pointer, so it starts with endbr64.
  exported=$(awk '$4 == "FUNC" && $7 != "UND" { print $8 }' <<<"$header")
  [ -n "$exported" ] || fault "exports nothing"
  others=$(awk -v exported="$exported" '
    BEGIN { split(exported, names, "\n"); for (i in names) wanted["<" names[i] ">:"] = 1 }
    name && $2 != "endbr64" { print name, $2 }
    { name = $2 in wanted ? $2 : "" }' <<<"$code")
  [ -z "$others" ] || fault "exported functions without endbr64 (-fcf-protection):" "$others"
fi
exit "$status"
