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

# blocks LANGUAGE [START]: see blocks.awk. Programs begin with Imports.
blocks() {
  awk -v "language=$1" -v "start=${2:-}" -f "$root/Tests/docs/blocks.awk" "$root/docs/from-a-macro.md"
}

blocks xml | cut -f 2- >FirstCall.vbproj
case $part in
  first) blocks vb ^Imports | cut -f 2- >FirstCall.vb ;;
  snippets)
    # Each block has variables of its own.
    {
      printf 'Imports QUVARDBS1C.Routines\nModule Page\n  Sub Main()\n'
      blocks vb '^[^I]' | awk -F '\t' '
        $1 != block { if (block) print "End If"; block = $1; print "If True Then" }
        { print $2 }
        END { print "End If" }'
      printf '  End Sub\nEnd Module\n'
    } >FirstCall.vb
    ;;
  applications)
    {
      printf 'Imports QUVARDBS1C.Routines\nModule Page\n  Sub Main()\n    FirstCall()\n  End Sub\n'
      blocks vba | cut -f 2- | sed "s/Debug\.Print \(.*\)  '/Console.WriteLine(\1)  '/"
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
