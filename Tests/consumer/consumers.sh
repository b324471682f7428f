#!/usr/bin/env bash
# Goes one way of installing and using the library as a user goes it, and runs what was built:
#
#   consumers.sh WAY [ARGUMENT]
#
# Nothing here adds a run path, a library path or a copied file: what a program needs must come from
# the package files or from a line that the README gives.
#
# From the environment: SOURCES and BUILT, the project's source and build folders; WORK, a folder
# for build trees that stay; CC, CXX, CFLAGS and CXXFLAGS, which CMake reads by itself; STANDARD_LIBRARY,
# the C++ standard library that the build has, and OTHER_LIBRARY.
set -euo pipefail

consumer=$SOURCES/Tests/consumer
scratch=$(mktemp -d "${TMPDIR:-/tmp}/consumer.XXXXXX")
trap 'rm -rf -- "$scratch"' EXIT
prefix=$scratch/installed

fail() {
  printf '%s\n' "$@" >&2
  exit 1
}

# Runs a command, and shows its output only if it fails.
quietly() {
  local output status=0
  output=$("$@" 2>&1) || status=$?
  [ "$status" -eq 0 ] || fail "$output" "Failed with status $status: $*"
}

# Runs a program, which is to print "right".
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

# The parent project that takes the sources in, with strict flags of its own. Its tree stays, and
# its libraries serve all ways that need another configuration.
parent=$WORK/parent
configure_parent() {
  local strict="-Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Werror"
  configure "$parent" "$1" "CXX;C" -D CMAKE_BUILD_TYPE=Release \
    -D CMAKE_CXX_FLAGS="${CXXFLAGS:-} $strict" -D CMAKE_C_FLAGS="${CFLAGS:-} $strict" \
    -D QUVARDBS1C_INSTALL=ON -D CMAKE_INSTALL_LIBDIR=lib "${@:2}"
  quietly cmake --build "$parent"
}

# use_parent WAY [ARGUMENTS OF CMAKE]...: builds with them, and runs the programs there and installed.
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

# A parent that installs the two libraries by itself.
without_install_rules() {
  local rest
  use_parent add_subdirectory -D QUVARDBS1C_INSTALL=OFF
  rest=$(cd -- "$prefix" && find . -name '*QUVARD*' ! -name '*.dll')
  [ -z "$rest" ] || fail "QUVARDBS1C_INSTALL=OFF, and yet there is:" "$rest"
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

# Compiles the C++ and the C program with what pkg-config says, and runs them.
compile_by_pkg_config() {
  local flags cxx=$scratch/cxx c=$scratch/c
  flags=$(PKG_CONFIG_PATH=$1/pkgconfig pkg-config --cflags --libs QUVARDBS1C)
  # pkg-config quotes what a shell would take apart, for eval or for make.
  eval "quietly \"\$CXX\" ${CXXFLAGS:-} -o \"\$cxx\" \"\$consumer/consumer.cpp\" $flags"
  eval "quietly \"\$CC\" ${CFLAGS:-} -std=c11 -o \"\$c\" \"\$consumer/consumer.c\" $flags"
  expect_right "$cxx"
  expect_right "$c"
}

# pkg_config LIBDIR, where LIBDIR is as CMAKE_INSTALL_LIBDIR; "absolute" is an absolute folder.
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

# A host that loads the library at run time: from the build tree, installed, by a link.
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

# Removes what was installed, leaves the files of others, and says when there is nothing to remove.
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

# build WAY OPTIONS: the C++ program, compiled and linked with options of its own.
build() {
  configure "$scratch/$1" "$1" CXX -D CONSUMER_OPTIONS="$2" -D CMAKE_PREFIX_PATH="$prefix" \
    -D CMAKE_UNITY_BUILD=ON
  quietly cmake --build "$scratch/$1"
}

# A program with another C++ standard library than the libraries' is refused. Without the wide routines
# it runs.
other_library() {
  local message="built with $STANDARD_LIBRARY and this program uses $OTHER_LIBRARY"
  local way other="-stdlib=$OTHER_LIBRARY" no_wide=-DQUVARDBS1C_NO_WIDE_ROUTINES flags=${CXXFLAGS:-}
  export CXX=clang++
  # shellcheck disable=SC2086
  echo 'int main() {}' | "$CXX" $flags "$other" -include string -o "$scratch/empty" -x c++ - || {
    echo "not tried: $CXX has no $OTHER_LIBRARY"
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
