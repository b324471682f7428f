#!/usr/bin/env bash
# Runs a program of README.md with the commands beside it, and compares the output with the comments at the
# ends of its lines.
#
#   ReadmeProgram.sh cpp|c|vb BUILD
#
# BUILD is the build tree that is installed. CC and CXX, with CFLAGS and CXXFLAGS, are the compilers.
set -euo pipefail
root=$(CDPATH='' cd -- "$(dirname -- "${BASH_SOURCE[0]}")/../.." && pwd)
language=$1 build=$2
scratch=$(mktemp -d "${TMPDIR:-/tmp}/readme.XXXXXX")
trap 'rm -rf -- "$scratch"' EXIT
cd -- "$scratch"

# block LANGUAGE NUMBER
block() { awk -v "language=$1" -f "$root/Tests/docs/blocks.awk" "$root/README.md" | sed -n "s/^$2"$'\t//p'; }

case $language in
  cpp) source=first.cpp number=2 ;;
  c) source=first.c number=3 ;;
  vb) source=Program.vb number=4 ;;
esac
block "$language" 1 >"$source"
sed -nE "s,^.*[^ ]  (//|') ,,p" "$source" >expected
[ -s expected ] || { echo "README.md has no program in $language."; exit 1; }

# The compilers of this build, as c++ and cc. The build tree is already built.
mkdir -- bin
printf '#!/bin/sh\nexec %q %s "$@"\n' "${CXX:-c++}" "${CXXFLAGS:-}" >bin/c++
printf '#!/bin/sh\nexec %q %s "$@"\n' "${CC:-cc}" "${CFLAGS:-}" >bin/cc
chmod +x bin/*
# shellcheck disable=SC2016
printf 'cmake() { case $* in "--install build/demo "*) command cmake --install %q "${@:3}" ;; esac; }\n' \
  "$build" >commands
{ block sh 1 && block sh "$number"; } >>commands
HOME=$scratch PATH=$scratch/bin:$PATH bash -eu commands >printed 2>log || { cat printed log; exit 1; }
# The first commands report what they install and create.
diff expected <(tail -n "$(wc -l <expected)" printed)
