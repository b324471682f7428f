#!/usr/bin/env bash
# Compares the names in the header with other lists of names. Prints the names that only one list has.
#
#   exports.sh listed HEADER LIST...              the lists of exports
#   exports.sh exported HEADER SYMBOLS LIST...    the output of the command SYMBOLS, with the lists
#   exports.sh examples HEADER                    the declarations below an example
#   exports.sh table HEADER FILE                  the host routines, with the words in FILE
set -euo pipefail
what=$1 header=$2
shift 2

declarations=$(awk '/^QUVARDBS1C_API /{d=""} {d=d $0} /;/{if(d~/^QUVARDBS1C_API /)print d; d=""}' "$header")
names() { sed -E 's/\(.*//; s/.*[ *]//' | sort; }
listed() { sed '/^#/d' "$@" | sort; }

# shellcheck disable=SC2016
case $what in
  listed) diff <(names <<<"$declarations") <(listed "$@" | c++filt -n | cut -d'(' -f1 | sort) ;;
  exported) diff <(listed "${@:2}") <(eval "$1" | sort) ;;
  examples) diff <(names <<<"$declarations") \
    <(sed -n '/^\/\/\/ @b Example: `.*`$/{n;/^QUVARDBS1C_API /p;}' "$header" | names) ;;
  table)
    hosts=$(grep -w BSTR <<<"$declarations" | names)
    diff <(printf '%s\n' "$hosts") <(grep -oE '\w+' "$1" | sort -u | grep -xF "$hosts") ;;
esac
