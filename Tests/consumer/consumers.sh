#!/usr/bin/env bash
# Installs and uses the library in one way, and runs the program:
#
#   consumers.sh WAY [ARGUMENT]
#
# Adds no run path, no library path and no copy: what a program needs comes from the installed files or from a line
# in docs/building.md.
#
# Environment: SOURCES and BUILT, the source and build folders of the project; WORK, a folder for build trees that
# are reused; CC, CXX, CFLAGS and CXXFLAGS, which CMake reads too; STANDARD_LIBRARY, the C++ standard library of
# the build, and OTHER_LIBRARY.
set -euo pipefail

consumer=$SOURCES/Tests/consumer
scratch=$(mktemp -d "${TMPDIR:-/tmp}/consumer.XXXXXX")
trap 'rm -rf -- "$scratch"' EXIT
prefix=$scratch/installed

fail() {
  printf '%s\n' "$@" >&2
  exit 1
}

# Runs a command. Prints its output only if it fails.
quietly() {
  local output status=0
  output=$("$@" 2>&1) || status=$?
  [ "$status" -eq 0 ] || fail "$output" "Failed with status $status: $*"
}

# Expects the program to print "right".
expect_right() {
  local output
  output=$("$@" 2>&1) || true
  [ "$output" = right ] || fail "$*" "  expected: right" "  printed:  $output"
}

# refused MESSAGE COMMAND...: expects the command to fail with the message.
refused() {
  local output message=$1
  ! output=$("${@:2}" 2>&1) || fail "${*:2}" "  expected an error: $message"
  [[ $output == *"$message"* ]] || fail "${*:2}" "  expected: $message" "  printed:  $output"
}

# configure TREE WAY LANGUAGES [ARGUMENTS OF CMAKE]...
configure() {
  quietly cmake -S "$consumer" -B "$1" -D CONSUMER_WAY="$2" -D CONSUMER_LANGUAGES="$3" \
    -D CONSUMER_SOURCES="$SOURCES" "${@:4}"
}

# A parent project that adds the sources, with strict compiler flags. Its build tree is reused.
parent=$WORK/parent
configure_parent() {
  local strict="-Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Werror"
  configure "$parent" "$1" "CXX;C" -D CMAKE_BUILD_TYPE=Release \
    -D CMAKE_CXX_FLAGS="${CXXFLAGS:-} $strict" -D CMAKE_C_FLAGS="${CFLAGS:-} $strict" \
    -D QUVARDBS1C_INSTALL=ON -D CMAKE_INSTALL_LIBDIR=lib "${@:2}"
  quietly cmake --build "$parent"
}

# use_parent WAY [ARGUMENTS OF CMAKE]...: builds the programs, and runs them in the build tree and installed.
use_parent() {
  configure_parent "$@"
  expect_right "$parent/consumer-cxx"
  expect_right "$parent/consumer-c"
  quietly cmake --install "$parent" --prefix "$prefix"
  expect_right "$prefix/bin/consumer-cxx"
  expect_right "$prefix/bin/consumer-c"
}

add_subdirectory() {
  local libraries
  use_parent add_subdirectory
  libraries=$(cd -- "$parent" && find . -name '*.dll' | sed 's|/[^/]*$||' | sort | uniq -c | xargs)
  [ "$libraries" = "2 ./_deps/quvardbs1c-build/bin" ] ||
    fail "expected in the build tree: 2 libraries in ./_deps/quvardbs1c-build/bin" \
      "found: $libraries"
}

fetch_content() { use_parent fetch_content; }

# A parent project that installs the two libraries itself.
without_install_rules() {
  local rest
  use_parent add_subdirectory -D QUVARDBS1C_INSTALL=OFF
  rest=$(cd -- "$prefix" && find . -name '*QUVARD*' ! -name '*.dll')
  [ -z "$rest" ] || fail "Installed in spite of QUVARDBS1C_INSTALL=OFF:" "$rest"
}

find_package() { use_package find_package "$1"; }

pkg_check_modules() {
  prefix="$scratch/in stalled ü"
  use_package pkg_check_modules "CXX;C"
}

# use_package WAY LANGUAGES
use_package() {
  local language
  quietly cmake --install "$BUILT" --prefix "$prefix"
  configure "$scratch/tree" "$1" "$2" -D CMAKE_PREFIX_PATH="$prefix"
  quietly cmake --build "$scratch/tree"
  quietly cmake --install "$scratch/tree" --prefix "$scratch/elsewhere"
  for language in ${2//;/ }; do
    language=$(printf %s "$language" | tr '[:upper:]' '[:lower:]')
    expect_right "$scratch/tree/consumer-$language"
    expect_right "$scratch/elsewhere/bin/consumer-$language"
  done
}

# Compiles the C++ and the C program with the flags of pkg-config, and runs them.
compile_by_pkg_config() {
  local flags cxx=$scratch/cxx c=$scratch/c
  flags=$(PKG_CONFIG_PATH=$1/pkgconfig pkg-config --cflags --libs QUVARDBS1C)
  # pkg-config quotes blanks for a shell, so the flags need eval.
  eval "quietly \"\$CXX\" ${CXXFLAGS:-} -o \"\$cxx\" \"\$consumer/consumer.cpp\" $flags"
  eval "quietly \"\$CC\" ${CFLAGS:-} -std=c11 -o \"\$c\" \"\$consumer/consumer.c\" $flags"
  expect_right "$cxx"
  expect_right "$c"
}

# pkg_config LIBDIR: LIBDIR is the value of CMAKE_INSTALL_LIBDIR; "absolute" stands for an absolute path.
pkg_config() {
  local libdir=$1
  [ "$libdir" != absolute ] || libdir=$scratch/libraries
  configure_parent add_subdirectory -D CMAKE_INSTALL_LIBDIR="$libdir"
  quietly cmake --install "$parent" --prefix "$prefix"
  case $libdir in
    /*) compile_by_pkg_config "$libdir" ;;
    *) compile_by_pkg_config "$prefix/$libdir" ;;
  esac
}

pkg_config_moved() {
  quietly cmake --install "$BUILT" --prefix "$prefix"
  mv -- "$prefix" "$scratch/moved"
  compile_by_pkg_config "$(libdir_of "$scratch/moved")"
}

pkg_config_blanks() {
  prefix="$scratch/in stalled ü"
  quietly cmake --install "$BUILT" --prefix "$prefix"
  compile_by_pkg_config "$(libdir_of "$prefix")"
}

# The folder of the libraries below a prefix.
libdir_of() { dirname -- "$(find "$1" -name QUVARDBS1C.dll)"; }

# A program loads the library at run time: from the build tree, from the installation, and by a link.
load() {
  local host=$scratch/loader libdir
  # shellcheck disable=SC2086
  quietly "$CC" ${CFLAGS:-} -o "$host" "$consumer/loader.c" -ldl
  quietly cmake --install "$BUILT" --prefix "$prefix"
  libdir=$(libdir_of "$prefix")
  mkdir -- "$scratch/links"
  for library in "$BUILT/bin" "$libdir"; do
    expect_right "$host" "$library/QUVARDBS1C.dll"
    ln -sf -- "$library/QUVARDBS1C.dll" "$scratch/links/"
    expect_right "$host" "$scratch/links/QUVARDBS1C.dll"
  done
}

# Uninstalling leaves files of others. A second run fails with a message.
uninstall() {
  local before after
  prefix="$scratch/in stalled ü"
  mkdir -p -- "$prefix/lib" "$prefix/share/doc/quvardbs1c"
  touch -- "$prefix/lib/other" "$prefix/share/doc/quvardbs1c/notes"
  before=$(find "$prefix" -type f)
  quietly cmake --install "$BUILT" --prefix "$prefix"
  rm -- "$prefix/share/doc/quvardbs1c/copyright"
  quietly cmake --build "$BUILT" --target uninstall
  after=$(find "$prefix" -type f -o -path '*quvardbs1c/*' -o -path '*QUVARDBS1C*')
  [ "$before" = "$after" ] || fail "expected after uninstalling:" "$before" "found:" "$after"
  refused "Nothing to uninstall" cmake --build "$BUILT" --target uninstall
}

static() {
  refused "are shared libraries only" cmake -S "$SOURCES" -B "$scratch/static" -D BUILD_SHARED_LIBS=OFF
  # A parent project may have static libraries of its own.
  use_parent add_subdirectory -D BUILD_SHARED_LIBS=OFF
}

# build WAY OPTIONS: builds the C++ program with these compiler and linker options.
build() {
  configure "$scratch/$1" "$1" CXX -D CONSUMER_OPTIONS="$2" -D CMAKE_PREFIX_PATH="$prefix" \
    -D CMAKE_UNITY_BUILD=ON
  quietly cmake --build "$scratch/$1"
}

# A program with another C++ standard library does not compile. It runs without the wide routines.
other_library() {
  local message="built with $STANDARD_LIBRARY and this program uses $OTHER_LIBRARY"
  local way other="-stdlib=$OTHER_LIBRARY" no_wide=-DQUVARDBS1C_NO_WIDE_ROUTINES flags=${CXXFLAGS:-}
  export CXX=clang++
  # shellcheck disable=SC2086
  echo 'int main() {}' | "$CXX" $flags "$other" -include string -o "$scratch/empty" -x c++ - || {
    echo "Skipped: $CXX has no $OTHER_LIBRARY."
    exit 77
  }
  quietly cmake --install "$BUILT" --prefix "$prefix"
  for way in find_package add_subdirectory; do
    refused "$message" build "$way" "$other"
    build "$way" "$other;$no_wide"
    expect_right "$scratch/$way/consumer-cxx"
  done
  CXXFLAGS="$flags $other" refused "$message" compile_by_pkg_config "$(libdir_of "$prefix")"
  CXXFLAGS="$flags $other $no_wide" compile_by_pkg_config "$(libdir_of "$prefix")"
}

"$@"
