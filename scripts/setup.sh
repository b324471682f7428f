# shellcheck shell=bash disable=SC2034
# Sourced by the scripts beside it. Nothing here writes to the standard output.

root=$(CDPATH='' cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)

jobs=$(getconf _NPROCESSORS_ONLN)
export CMAKE_BUILD_PARALLEL_LEVEL="${CMAKE_BUILD_PARALLEL_LEVEL:-$jobs}"
export CTEST_PARALLEL_LEVEL="${CTEST_PARALLEL_LEVEL:-$jobs}"

# What a script needs: a command or a header, its Debian package, and its Homebrew formula or
# "xcode" for what comes with Apple's command line tools.
build_needs=(
  c++:g++:xcode
  make:make:xcode
  cmake:cmake:cmake
)
test_needs=(
  "${build_needs[@]}"
  gtest/gtest.h:libgtest-dev:googletest
)
check_needs=(
  "${test_needs[@]}"
  g++:g++:xcode
  clang++:clang:xcode
  clang-format:clang-format:clang-format
  clang-tidy:clang-tidy:llvm
)
benchmark_needs=(
  benchmark/benchmark.h:libbenchmark-dev:google-benchmark
  mpfr.h:libmpfr-dev:mpfr
)

say() { printf '%s\n' "$*" >&2; }

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

# Configures with CMake. A build tree that was moved, or whose compiler has gone, starts afresh.
configure() { cmake "$@" >/dev/null 2>&1 || quietly cmake --fresh "$@"; }

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

# Whether a row of the tables above is there.
has() {
  local need=${1%%:*}
  # Without the command line tools, macOS has compilers in name only.
  if [ "${1##*:}" = xcode ] && on_macos; then xcode-select -p >/dev/null 2>&1 || return 1; fi
  case $need in
    cmake) has_cmake ;;
    *.h) has_header "$need" ;;
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
  local as_root=(env DEBIAN_FRONTEND=noninteractive)
  look_for "$@"
  [ -n "$packages" ] || return 0
  ! on_macos || give_up_on_macos
  command -v apt-get >/dev/null ||
    give_up "Install it, then run this again. The Debian packages are: $packages"
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null ||
      give_up "Run this as root, or install it as root:" \
        "  apt-get update && apt-get install --no-install-recommends $packages"
    as_root=(sudo "${as_root[@]}")
  fi

  say "Installing $packages with apt-get; this may take some minutes."
  quietly "${as_root[@]}" apt-get update || say "Going on with the package lists at hand."
  # The packages are separate words.
  # shellcheck disable=SC2086
  quietly "${as_root[@]}" apt-get install --yes --no-install-recommends $packages ||
    give_up "apt-get could not install $packages."
  hash -r
  look_for "$@"
  [ -z "$packages" ] ||
    give_up "This system's packages do not supply it ($packages): install it from elsewhere."
}
