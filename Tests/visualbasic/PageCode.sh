#!/usr/bin/env bash
# Compiles and runs the code in docs/from-a-macro.md and README.md as a reader does, in a folder with the
# installed files. Compares the output of each line with the comment at its end.
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
# Moved, not copied, so that no library is found elsewhere.
find "$folder/../$part-installed" -name 'QUVARD*.dll' -exec mv {} . ';'
find "$folder/../$part-installed" -name 'QUVARD*.vb' -exec mv {} . ';'
[ "$#" -eq 0 ] || { rm QUVARDBS1C.vb && cp -- "$@" .; }

# blocks LANGUAGE [START]: see blocks.awk. Programs begin with Imports.
blocks() {
  awk -v "language=$1" -v "start=${2:-}" -f "$root/Tests/docs/blocks.awk" \
    "$root/docs/from-a-macro.md" "$root/README.md"
}

blocks xml | cut -f 2- >FirstCall.vbproj
case $part in
  first) blocks vb ^Imports | cut -f 2- >FirstCall.vb ;;
  snippets)
    # The variables of each block are local.
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
[ -s expected ] || { echo "no code for: $part" >&2; exit 1; }
"${DOTNET:-dotnet}" run >printed || { cat printed; exit 1; }
diff expected printed
[ "$part" = first ] || exit 0

# Without a library, the exception of the first call names it.
program=$(find bin -name FirstCall.dll)
for library in QUVARDCR1C QUVARDBS1C; do
  rm -- "${program%/*}/$library.dll"
  if "${DOTNET:-dotnet}" "$program" >printed 2>&1; then
    echo "the program runs without $library.dll" >&2
    exit 1
  fi
  if ! grep -q "DllNotFoundException.*QUVARDBS1C.dll" printed || ! grep -q "$library.dll: " printed; then
    echo "without $library.dll the program prints:" >&2
    cat printed
    exit 1
  fi
done
