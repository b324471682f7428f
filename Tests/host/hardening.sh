#!/usr/bin/env bash
# Checks that the file of a library is hardened as cmake/CompileOptions.cmake requires, and that the
# library calls its own functions even if the host defines functions of the same names:
#
#   hardening.sh LIBRARY
#
# Environment: READELF and OBJDUMP.
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

has 'GNU_RELRO' || fault "relocated data is writable (-z relro)"
has '\(FLAGS\).*BIND_NOW' || fault "functions are bound at their first call (-z now)"
has 'GNU_STACK.* RW ' || fault "the stack is executable (-z noexecstack)"
! has 'TEXTREL' || fault "code is relocated (-z text)"
# QUVARDCR1C has no array on the stack.
if [[ $library == *QUVARDBS1C.dll ]]; then
  has ' UND __stack_chk_fail' || fault "no stack protector (-fstack-protector-strong)"
  has ' UND __[a-z]+_chk([ @]|$)' || fault "no copy is checked (_FORTIFY_SOURCE)"
fi

exported=$(awk '$4 == "FUNC" && $7 != "UND" { print $8 }' <<<"$header")
[ -n "$exported" ] || fault "exports nothing"
bound=$("$READELF" -W --relocs "$library" | awk '{ print $5 }' | grep -xF "$exported") || true
[ -z "$bound" ] || fault "the host can replace these functions (-Bsymbolic-functions):" "$bound"

if has 'Machine:.*X86-64'; then
  code=$("$OBJDUMP" --disassemble --no-show-raw-insn "$library")
  # A probed frame grows by at most a page at a time.
  frames=$(awk '/>:$/ { name = $2 }
    /sub +\$0x[0-9a-f][0-9a-f][0-9a-f][0-9a-f]+,%rsp/ && !/\$0x1000,/ { print name, $NF }' <<<"$code")
  [ -z "$frames" ] || fault "frames without probes (-fstack-clash-protection):" "$frames"
  # A call through a pointer must find endbr64.
  others=$(awk -v exported="$exported" '
    BEGIN { split(exported, names, "\n"); for (i in names) wanted["<" names[i] ">:"] = 1 }
    name && $2 != "endbr64" { print name, $2 }
    { name = $2 in wanted ? $2 : "" }' <<<"$code")
  [ -z "$others" ] || fault "exported functions without endbr64 (-fcf-protection):" "$others"
fi
exit "$status"
