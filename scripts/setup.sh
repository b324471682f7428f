# shellcheck shell=bash disable=SC2034
# Sourced by the scripts beside it. Nothing here writes to the standard output.

root=$(CDPATH='' cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd -P)

# The folder for all that is built.
build=${QUVARDBS1C_BUILD_DIR:-$root/build}
case $build in
  /*) ;;
  *) build=$PWD/$build ;;
esac

# Prints the comment at the top of the script, if its arguments ask for help.
help_if_asked() {
  [ "${1:-}" = --help ] || return 0
  sed -n '2,/^[^#]/s/^# \{0,1\}//p' "$0"
  exit 0
}

jobs=$(getconf _NPROCESSORS_ONLN)
export CMAKE_BUILD_PARALLEL_LEVEL="${CMAKE_BUILD_PARALLEL_LEVEL:-$jobs}"
export CTEST_PARALLEL_LEVEL="${CTEST_PARALLEL_LEVEL:-$jobs}"

# What a script needs: a command, a header, a file of Debian or a module of Python, its Debian
# package, and its Homebrew formula, "xcode" for what comes with Apple's command line tools, or "-"
# for what only scripts for Linux need.
build_needs=(
  c++:g++:xcode
  make:make:xcode
  cmake:cmake:cmake
)
test_needs=(
  "${build_needs[@]}"
  gtest/gtest.h:libgtest-dev:googletest
  pkg-config:pkg-config:pkgconf
  /usr/share/i18n/locales/tr_TR:locales:
)
# What each lane of scripts/check needs beside these.
compiler_needs=(
  g++:g++:xcode
  clang++:clang:xcode
)
format_needs=(
  clang-format:clang-format:clang-format
)
tidy_needs=(
  clang-tidy:clang-tidy:llvm
)
script_needs=(
  "${build_needs[@]}"
  shellcheck:shellcheck:shellcheck
)
docs_needs=(
  doxygen:doxygen:doxygen
  dot:graphviz:graphviz
)
macos_needs=(
  "${build_needs[@]}"
  npm:npm:node
  llvm-objdump:llvm:llvm
)
vba_needs=(
  cc:gcc:xcode
  npm:npm:node
  tree_sitter/api.h:libtree-sitter-dev:tree-sitter
)
interface_needs=(
  "${build_needs[@]}"
  g++:g++:xcode
  abidw:abigail-tools:libabigail
)
libcxx_needs=(
  "c++/v1/string.h:libc++-dev libc++abi-dev:llvm"
)
fuzz_needs=(
  "${build_needs[@]}"
  gtest/gtest.h:libgtest-dev:googletest
  clang++:clang:xcode
  libfuzzer:libclang-rt-dev:llvm
)
valgrind_needs=(
  valgrind/valgrind.h:valgrind:
)
arm_needs=(
  "${test_needs[@]}"
  aarch64-linux-gnu-g++:g++-aarch64-linux-gnu:-
  qemu-aarch64-static:qemu-user-static:-
)
bits_needs=(
  "${test_needs[@]}"
  "${compiler_needs[@]}"
  "${libcxx_needs[@]}"
  python3-gmpy2:python3-gmpy2:-
)
benchmark_needs=(
  benchmark/benchmark.h:libbenchmark-dev:google-benchmark
  boost/algorithm/string.hpp:libboost-dev:boost
  gtest/gtest.h:libgtest-dev:googletest
  unicode/unistr.h:libicu-dev:icu4c
)
report_needs=(
  python3:python3:python
)
accuracy_needs=(
  mpfr.h:libmpfr-dev:mpfr
  boost/multiprecision/mpfr.hpp:libboost-dev:boost
)
coverage_needs=(
  gcov:gcc:gcc
  gcovr:gcovr:gcovr
)
mutation_needs=(
  python3:python3:python
)
package_needs=(
  "${build_needs[@]}"
  dpkg-shlibdeps:dpkg-dev:dpkg
  debootstrap:debootstrap:debootstrap
  lintian:lintian:-
)

say() { printf '%s\n' "$*" >&2; }

# Says lines, and ends.
fail() {
  printf '%s\n' "$@" >&2
  exit 1
}

# bad_argument TEXT: says what is wrong with the arguments, and ends.
bad_argument() {
  say "scripts/${0##*/}: $1 (see scripts/${0##*/} --help)"
  exit 2
}

# Runs a command as root.
as_root() {
  if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# Whether the .NET SDK is there, from version 8 on, which programs in Visual Basic need.
has_dotnet() {
  local newest
  newest=$(dotnet --list-sdks 2>/dev/null | tail -n 1) || return 1
  [ -n "$newest" ] && [ "${newest%%.*}" -ge 8 ]
}

# Says what to install, and ends, if it is not there.
require_dotnet() {
  has_dotnet && return
  missing=("dotnet, the .NET SDK, version 8 or newer")
  ! on_macos || give_up "Install it, then run this again:" "  brew install dotnet"
  give_up "Install it as its maker, Microsoft, tells, then run this again. Debian has no package of it."
}

# Runs a command and shows its output only if it fails.
quietly() {
  local output status=0
  output=$("$@" 2>&1) || status=$?
  if [ "$status" -ne 0 ]; then
    say "$output"
    say "Failed with status $status: $*"
  fi
  return "$status"
}

# Ends with a message where nothing can be built.
need_build_folder() {
  case $root$build in
    *\"*) fail "CMake builds in no path with a double quote: $root, $build" ;;
  esac
  mkdir -p -- "$build" 2>/dev/null && [ -w "$build" ] && return
  fail "Cannot write to $build. Name another folder for what is built, for instance:" \
    "  QUVARDBS1C_BUILD_DIR=\"\$HOME/quvardbs1c-build\" $0"
}

# configure TREE PRESET [ARGUMENTS OF CMAKE]...: a build tree below the build folder. One that was
# moved, or whose compiler has gone, starts afresh.
configure() {
  local cmake=(cmake -S "$root" -B "$build/$1" --preset "$2" "${@:3}")
  (cd -- "$root" && "${cmake[@]}") >/dev/null 2>&1 ||
    (cd -- "$root" && quietly "${cmake[@]}" --fresh)
}

# compile TREE [ARGUMENTS OF CMAKE]...: shows how far it is, and the errors if it fails.
compile() {
  local log=$build/$1/build.log status=0
  cmake --build "$build/$1" "${@:2}" 2>&1 | tee -- "$log" | show_progress >&2 || status=$?
  if [ "$status" -ne 0 ]; then
    say "$(grep -v '^\[' "$log" | head -n 40)"
    say "Failed with status $status: cmake --build $build/$1 ${*:2} (all it printed is in $log)"
  fi
  return "$status"
}

# The lines of a build that say how far it is: on a terminal in place, otherwise some of them.
show_progress() {
  local terminal=0
  [ ! -t 2 ] || terminal=1
  awk -v terminal="$terminal" '
    /^\[ *[0-9]+(%|\/[0-9]+)\]/ {
      if (terminal) { printf "\r\033[K%s", substr($0, 1, 78); fflush(); shown = 1 }
      else if (NR == 1 || NR % 10 == 0) { print; fflush() }
    }
    END { if (shown) printf "\r\033[K" }'
}

# copy_checkout FOLDER: the checkout without what was built; FOLDER/build stays.
copy_checkout() {
  mkdir -p -- "$1"
  find "$1" -mindepth 1 -maxdepth 1 ! -name build -exec rm -rf -- {} +
  tar -C "$root" --exclude=./build --exclude=./.git -cf - . | tar -C "$1" -xf -
}

on_macos() { [ "$(uname -s)" = Darwin ]; }

has_cmake() {
  local version major minor
  version=$(cmake --version 2>/dev/null) || return 1
  version=${version#cmake version }
  major=${version%%.*}
  minor=${version#*.}
  minor=${minor%%.*}
  [ "$major" -gt 3 ] || { [ "$major" -eq 3 ] && [ "$minor" -ge 25 ]; }
}

# Looks where CMake looks: in its own variable, beside the folders of PATH, in the usual places.
has_header() {
  local prefix IFS=:
  for prefix in ${CMAKE_PREFIX_PATH:-} $PATH /usr/bin /usr/local/bin /opt/homebrew/bin; do
    prefix=${prefix%/}
    [ ! -e "${prefix%/*bin}/include/$1" ] || return 0
  done
  return 1
}

has_libfuzzer() {
  echo 'extern "C" int LLVMFuzzerTestOneInput(const char*, long) { return 0; }' |
    clang++ -fsanitize=fuzzer -x c++ - -o /dev/null 2>/dev/null
}

# Whether a row of the tables above is there.
has() {
  local need=${1%%:*}
  # Without the command line tools, macOS has compilers in name only.
  if [ "${1##*:}" = xcode ] && on_macos; then xcode-select -p >/dev/null 2>&1 || return 1; fi
  case $need in
    cmake) has_cmake ;;
    /*) [ -e "$need" ] || ! command -v apt-get >/dev/null ;;
    libfuzzer) has_libfuzzer ;;
    *.h | *.hpp) has_header "$need" ;;
    python3-*) /usr/bin/python3 -c "import ${need#python3-}" 2>/dev/null ;;
    *) command -v "$need" >/dev/null ;;
  esac
}

# Sets what is missing of the rows given: the rows, and their Debian packages.
look_for() {
  local row package
  missing=()
  packages=
  for row in "$@"; do
    has "$row" && continue
    package=${row#*:}
    package=${package%:*}
    missing+=("$row")
    case " $packages " in *" $package "*) ;; *) packages="${packages:+$packages }$package" ;; esac
  done
}

# Says what is missing, then the lines of advice given, and ends.
give_up() {
  local row
  say "Missing:"
  for row in "${missing[@]}"; do
    case $row in
      cmake:*) say "  cmake, version 3.25 or newer" ;;
      *) say "  ${row%%:*}" ;;
    esac
  done
  for row in "$@"; do say "$row"; done
  exit 1
}

give_up_on_macos() {
  local row formulas='' advice=()
  for row in "${missing[@]}"; do
    case $row in
      *:xcode) advice=("  xcode-select --install") ;;
      *) formulas="$formulas ${row##*:}" ;;
    esac
  done
  [ -z "$formulas" ] || advice+=("  brew install$formulas")
  case "$formulas " in *" llvm "*) advice+=("  export PATH=\"\$PATH:\$(brew --prefix llvm)/bin\"") ;; esac
  give_up "Install it, then run this again:" "${advice[@]}"
}

# Makes sure of the rows given: installs what is missing, or says what to install and ends.
set_up() {
  look_for "$@"
  [ -n "$packages" ] || return 0
  ! on_macos || give_up_on_macos
  command -v apt-get >/dev/null ||
    give_up "Install it, then run this again. The Debian packages are: $packages"
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null ||
      give_up "Run this as root, or install it as root:" \
        "  apt-get update && apt-get install --no-install-recommends $packages"
  fi

  say "Installing $packages with apt-get; this may take some minutes."
  quietly as_root apt-get update || say "Going on with the package lists at hand."
  # The packages are separate words.
  # shellcheck disable=SC2086
  quietly as_root env DEBIAN_FRONTEND=noninteractive apt-get install --yes --no-install-recommends $packages ||
    give_up "apt-get could not install $packages."
  hash -r
  look_for "$@"
  [ -z "$packages" ] ||
    give_up "This system's packages do not supply it ($packages): install it from elsewhere."
}
