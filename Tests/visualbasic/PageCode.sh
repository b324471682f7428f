#!/usr/bin/env bash
# Compiles and runs the code of the page "From a macro" as its reader does, in a folder of its own with
# what an installation has, and compares what each line prints with the comment at its end.
#
#   PageCode.sh first|snippets|applications FOLDER BUILD [DECLARATIONS...]
set -euo pipefail
root=$(CDPATH='' cd -- "$(dirname -- "${BASH_SOURCE[0]}")/../.." && pwd)
part=$1 folder=$2 build=$3
shift 3

rm -rf -- "$folder"
mkdir -p -- "$folder"
cd -- "$folder"
cmake --install "$build" --prefix "$folder/../$part-installed" >installed.log
# Moved, not copied: a library that is missing here is nowhere else.
find "$folder/../$part-installed" -name 'QUVARD*.dll' -exec mv {} . ';'
find "$folder/../$part-installed" -name 'QUVARD*.vb' -exec mv {} . ';'
[ "$#" -eq 0 ] || { rm QUVARDBS1C.vb && cp -- "$@" .; }

# The lines of a language's blocks, each after the number of its block: of those that begin with
# Imports if the second argument is 1, of the others if it is 0.
blocks() {
  awk -v language="$1" -v programs="$2" '
    /^```/ { inside = !inside && $0 == "```" language; fresh = inside; next }
    inside && fresh { fresh = 0; taken = ($0 ~ /^Imports/) == programs; if (taken) ++block }
    inside && taken { print block "\t" $0 }' "$root/docs/from-a-macro.md" "$root/README.md"
}

blocks xml 0 | cut -f 2- >FirstCall.vbproj
case $part in
  first) blocks vb 1 | cut -f 2- >FirstCall.vb ;;
  snippets)
    # Each block has variables of its own.
    {
      printf 'Imports QUVARDBS1C.Routines\nModule Page\n  Sub Main()\n'
      blocks vb 0 | awk -F '\t' '
        $1 != block { if (block) print "End If"; block = $1; print "If True Then" }
        { print $2 }
        END { print "End If" }'
      printf '  End Sub\nEnd Module\n'
    } >FirstCall.vb
    ;;
  applications)
    {
      printf 'Imports QUVARDBS1C.Routines\nModule Page\n  Sub Main()\n    FirstCall()\n  End Sub\n'
      blocks vba 0 | cut -f 2- | sed "s/Debug\.Print \(.*\)  '/Console.WriteLine(\1)  '/"
      printf 'End Module\n'
    } >FirstCall.vb
    ;;
esac

sed -n "s/.*Console\.WriteLine(.*  ' //p" FirstCall.vb >expected
[ -s expected ] || { echo "The page has no code for: $part" >&2; exit 1; }
"${DOTNET:-dotnet}" run >printed || { cat printed; exit 1; }
diff expected printed
[ "$part" = first ] || exit 0

# Without a library, the first call says which one to look for.
program=$(find bin -name FirstCall.dll)
for library in QUVARDCR1C QUVARDBS1C; do
  rm -- "${program%/*}/$library.dll"
  if "${DOTNET:-dotnet}" "$program" >printed 2>&1; then
    echo "Without $library.dll the program ran." >&2
    exit 1
  fi
  if ! grep -q "DllNotFoundException.*QUVARDBS1C.dll" printed || ! grep -q "$library.dll: " printed; then
    echo "Without $library.dll the program printed:" >&2
    cat printed
    exit 1
  fi
done
