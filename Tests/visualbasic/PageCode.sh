#!/usr/bin/env bash
# Compiles and runs the code of the page "From a macro" as its reader does, in a folder of its own, and
# compares what each line prints with the comment at its end.
#
#   PageCode.sh first|snippets|applications FOLDER LIBRARIES DECLARATIONS...
set -euo pipefail
root=$(CDPATH='' cd -- "$(dirname -- "${BASH_SOURCE[0]}")/../.." && pwd)
part=$1 folder=$2 libraries=$3
shift 3

rm -rf -- "$folder"
mkdir -p -- "$folder"
cp -- "$libraries"/QUVARD*.dll "$@" "$folder"
cd -- "$folder"

# The lines of a language's blocks, each after the number of its block: of those that begin with
# Module if the second argument is 1, of the others if it is 0.
blocks() {
  awk -v language="$1" -v modules="$2" '
    /^```/ { inside = !inside && $0 == "```" language; fresh = inside; next }
    inside && fresh { fresh = 0; taken = ($0 ~ /^Module/) == modules; if (taken) ++block }
    inside && taken { print block "\t" $0 }' "$root/docs/from-a-macro.md" "$root/README.md"
}

blocks xml 0 | cut -f 2- >FirstCall.vbproj
case $part in
  first) blocks vb 1 | cut -f 2- >FirstCall.vb ;;
  snippets)
    # Each block has variables of its own.
    {
      printf 'Module Page\n  Sub Main()\n'
      blocks vb 0 | awk -F '\t' '
        $1 != block { if (block) print "End If"; block = $1; print "If True Then" }
        { print $2 }
        END { print "End If" }'
      printf '  End Sub\nEnd Module\n'
    } >FirstCall.vb
    ;;
  applications)
    {
      printf 'Module Page\n  Sub Main()\n    FirstCall()\n  End Sub\n'
      blocks vba 0 | cut -f 2- | sed "s/Debug\.Print \(.*\)  '/Console.WriteLine(\1)  '/"
      printf 'End Module\n'
    } >FirstCall.vb
    ;;
esac

sed -n "s/.*Console\.WriteLine(.*  ' //p" FirstCall.vb >expected
[ -s expected ] || { echo "The page has no code for: $part" >&2; exit 1; }
"${DOTNET:-dotnet}" run >printed || { cat printed; exit 1; }
diff expected printed
