#!/usr/bin/env bash
# Runs a program of docs/other-languages.md or docs/from-a-macro.md in a new folder, and compares its output with the
# comments at the ends of its lines.
#
#   PageProgram.sh python|gambas FOLDER BUILD          with the libraries installed from a build tree
#   PageProgram.sh csharp|fsharp|vb FOLDER PACKAGES    with the NuGet package in the folder PACKAGES
set -euo pipefail
root=$(CDPATH='' cd -- "$(dirname -- "${BASH_SOURCE[0]}")/../.." && pwd)
language=$1 folder=$2 origin=$3
page=$root/docs/other-languages.md
[ "$language" != vb ] || page=$root/docs/from-a-macro.md

# block LANGUAGE NUMBER
block() { awk -v "language=$1" -f "$root/Tests/docs/blocks.awk" "$page" | sed -n "s/^$2"$'\t//p'; }

rm -rf -- "$folder"
mkdir -p -- "$folder"
cd -- "$folder"
case $language in
  python | gambas)
    cmake --install "$origin" --prefix "$folder/installed" >install.log
    # Moved, so that the program cannot find another copy.
    find installed -name '*.dll' -exec mv {} . ';'
    program=first_call
    ;;
  *)
    commands=$(block sh 1)
    case $language in
      csharp) program=Program.cs ;;
      fsharp) program=Program.fs commands=${commands/C#/F#} ;;
      vb) program=Program.vb ;;
    esac
    bash -euc "${commands/\/path\/to\/packages/"$(printf %q "$origin")"}" >commands.log || { cat commands.log; exit 1; }
    cd FirstCall
    ;;
esac
block "$language" 1 >"$program"
sed -nE "s,^.*[^ ]  (//|#|') ,,p" "$program" >expected
[ -s expected ] || { echo "$page has no program in $language." >&2; exit 1; }
case $language in
  python) command=(python3 first_call) ;;
  gambas)
    sh -euc "$(block sh 2)"
    command=(env "LD_LIBRARY_PATH=$PWD" gbs3 first_call)
    ;;
  *) command=(dotnet run) ;;
esac
"${command[@]}" >printed || { cat printed; exit 1; }
diff expected printed
