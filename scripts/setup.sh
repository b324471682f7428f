# shellcheck shell=bash disable=SC2034
# Sourced by the other scripts. Writes nothing to the standard output.

root=$(CDPATH='' cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd -P)

# The build folder.
build=${QUVARDBS1C_BUILD_DIR:-$root/build}
case $build in /*) ;; *) build=$PWD/$build ;; esac

jobs=$(getconf _NPROCESSORS_ONLN)
export CMAKE_BUILD_PARALLEL_LEVEL="${CMAKE_BUILD_PARALLEL_LEVEL:-$jobs}"
export CTEST_PARALLEL_LEVEL="${CTEST_PARALLEL_LEVEL:-$jobs}"

# Requirements of the scripts, as NEED:PACKAGE:FORMULA. NEED is a command, a header in an include folder,
# or a path, which is only checked on Debian. PACKAGE is the Debian package, by default NEED. FORMULA is
# the Homebrew formula, by default PACKAGE; "xcode" means Apple's command line tools.
build_needs=(c++:g++:xcode make:make:xcode cmake)
test_needs=("${build_needs[@]}" gtest/gtest.h:libgtest-dev:googletest pkg-config:pkg-config:pkgconf
  python3:python3:python /usr/bin/gbs3:gambas3-scripter /usr/share/i18n/locales/tr_TR:locales)
docs_needs=(doxygen dot:graphviz linkchecker markdown_py:python3-markdown)
report_needs=(python3:python3:python)
benchmark_needs=(benchmark/benchmark.h:libbenchmark-dev:google-benchmark boost/algorithm/string.hpp:libboost-dev:boost
  gtest/gtest.h:libgtest-dev:googletest unicode/unistr.h:libicu-dev:icu4c)
# Additional requirements of single checks.
compiler_needs=(g++:g++:xcode clang++:clang:xcode)
format_needs=(clang-format)
tidy_needs=(clang-tidy:clang-tidy:llvm)
script_needs=("${build_needs[@]}" shellcheck)
macos_needs=("${build_needs[@]}" npm:npm:node llvm-objdump:llvm)
vba_needs=(cc:gcc:xcode npm:npm:node tree_sitter/api.h:libtree-sitter-dev:tree-sitter)
interface_needs=("${build_needs[@]}" g++:g++:xcode abidw:abigail-tools:libabigail)
libcxx_needs=("c++/v1/string.h:libc++-dev libc++abi-dev:llvm")
sanitizer_needs=(clang++:clang:xcode
  "/usr/lib/llvm-*/lib/clang/*/lib/linux/libclang_rt.fuzzer-*:libclang-rt-dev")
fuzz_needs=("${build_needs[@]}" gtest/gtest.h:libgtest-dev:googletest "${sanitizer_needs[@]}")
valgrind_needs=(valgrind/valgrind.h:valgrind)
arm_needs=("${test_needs[@]}" aarch64-linux-gnu-g++:g++-aarch64-linux-gnu
  qemu-aarch64-static:qemu-user-static)
bits_needs=("${test_needs[@]}" "${compiler_needs[@]}" "${libcxx_needs[@]}"
  /usr/lib/python3/dist-packages/gmpy2:python3-gmpy2)
accuracy_needs=(mpfr.h:libmpfr-dev:mpfr boost/multiprecision/mpfr.hpp:libboost-dev:boost)
coverage_needs=(gcov:gcc gcovr)
nuget_needs=("${arm_needs[@]}" "${macos_needs[@]}")
mutation_needs=("${report_needs[@]}")
package_needs=("${build_needs[@]}" dpkg-shlibdeps:dpkg-dev:dpkg debootstrap lintian)

say() { printf '%s\n' "$@" >&2; }
fail() { say "$@"; exit 1; }
as_root() { if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi; }

# Prints the comment at the top of the script.
help() { sed -n '2,/^[^#]/s/^# \{0,1\}//p' "$0"; }
help_if_asked() { if [ "${1:-}" = --help ]; then help; exit; fi; }

# bad_argument MESSAGE: prints what is wrong with the arguments and exits.
bad_argument() {
  say "scripts/${0##*/}: $1 (see scripts/${0##*/} --help)"
  exit 2
}

# Exits unless each argument starts an indented line of the help text.
known_arguments() {
  local argument
  for argument in "$@"; do
    help | awk -v known="  $argument " 'index($0 " ", known) == 1 { found = 1 } END { exit !found }' ||
      bad_argument "unknown argument \"$argument\""
  done
}

# pack_nuget CHECKOUT NATIVE FOLDER: packs the project in Hosts/NuGet of a checkout with the native
# libraries in NATIVE into FOLDER.
pack_nuget() {
  DOTNET_CLI_TELEMETRY_OPTOUT=1 quietly dotnet msbuild "$1/Hosts/NuGet/QUVARDBS1C.vbproj" \
    -restore -target:Pack -nologo -verbosity:quiet -nodeReuse:false -p:UseSharedCompilation=false \
    -p:Configuration=Release "-p:NativeFolder=$2" "-p:PackageOutputPath=$3" \
    "-p:BaseIntermediateOutputPath=$3/obj/" "-p:OutDir=$3/bin/"
}

# Runs a command and shows its output only if it fails.
quietly() {
  local output status=0
  output=$("$@" 2>&1) || status=$?
  [ "$status" -eq 0 ] || say "$output" "Failed with status $status: $*"
  return "$status"
}

# Exits with a message if nothing can be built here.
need_build_folder() {
  local folder free
  case $root$build in *\"*) fail "CMake cannot build in a path with a double quote: $root, $build" ;; esac
  mkdir -p -- "$build" 2>/dev/null || true
  [ -w "$build" ] ||
    fail "Cannot write to $build. Name another build folder, for example:" \
      "  QUVARDBS1C_BUILD_DIR=\"\$HOME/quvardbs1c-build\" $0"
  for folder in "$build" "${TMPDIR:-/tmp}"; do
    free=$(df -Pk -- "$folder" | awk 'END { print int($4 / 1024) }')
    [ "$free" -ge 200 ] ||
      fail "The disk is full: $folder has $free MB free, and a build needs 200 MB." \
        "QUVARDBS1C_BUILD_DIR names another build folder, TMPDIR another folder for temporary files."
  done
}

# configure TREE PRESET [CMAKE ARGUMENT]...: configures $build/TREE. If that fails, because the tree was
# moved or its compiler removed, starts with an empty cache.
configure() {
  local cmake=(cmake -S "$root" -B "$build/$1" --preset "$2" "${@:3}")
  (cd -- "$root" && "${cmake[@]}") >/dev/null 2>&1 ||
    (cd -- "$root" && quietly "${cmake[@]}" --fresh)
}

# compile TREE [CMAKE ARGUMENT]...: shows every tenth step, and the errors if it fails.
compile() {
  local log=$build/$1/build.log status=0
  cmake --build "$build/$1" "${@:2}" 2>&1 | tee -- "$log" |
    awk '/^\[/ && ++steps % 10 == 1 { print; fflush() }' >&2 || status=$?
  [ "$status" -eq 0 ] || say "$(grep -v '^\[' "$log" | head -n 40)" \
    "Failed with status $status: cmake --build $build/$1 ${*:2} (complete output: $log)"
  return "$status"
}

# copy_checkout FOLDER: copies the checkout without build and .git; keeps FOLDER/build.
copy_checkout() {
  mkdir -p -- "$1"
  find "$1" -mindepth 1 -maxdepth 1 ! -name build -exec rm -rf -- {} +
  tar -C "$root" --exclude=./build --exclude=./.git -cf - . | tar -C "$1" -xf -
}

on_macos() { [ "$(uname -s)" = Darwin ]; }

# Whether the .NET SDK, version 8 or newer, is installed; programs in Visual Basic need it.
has_dotnet() { dotnet --list-sdks 2>/dev/null | grep -qE '^([89]|[1-9][0-9])\.'; }

require_dotnet() {
  has_dotnet || fail "Missing: dotnet, the .NET SDK, version 8 or newer" \
    "Install it from Microsoft, then run this again. Debian has no package of it;" \
    "Homebrew has: brew install dotnet"
}

# Searches where CMake does: CMAKE_PREFIX_PATH, the parents of PATH's folders, the default prefixes.
has_header() {
  local prefix IFS=:
  for prefix in ${CMAKE_PREFIX_PATH:-} $PATH /usr/bin /usr/local/bin /opt/homebrew/bin; do
    prefix=${prefix%/}
    [ ! -e "${prefix%/*bin}/include/$1" ] || return 0
  done
  return 1
}

# Whether a NEED of the tables above is installed.
has() {
  local oldest=3.25
  case $1 in
    cmake) [ "$( (echo "$oldest" && cmake --version 2>/dev/null | sed -n 's/^cmake version //p') |
      sort -V | sed -n '$!p')" = "$oldest" ] ;;
    /*) compgen -G "$1" >/dev/null || ! command -v apt-get >/dev/null ;;
    *.h | *.hpp) has_header "$1" ;;
    *) command -v "$1" >/dev/null ;;
  esac
}

# Sets missing to the missing needs of the given rows, and packages and formulas to what supplies them.
look_for() {
  local row need package formula
  missing='' packages='' formulas=''
  for row in "$@"; do
    IFS=: read -r need package formula <<<"$row"
    package=${package:-$need} formula=${formula:-${package:-$need}}
    # Without the command line tools, the compilers of macOS are placeholders.
    if [ "$formula" = xcode ] && on_macos; then xcode-select -p >/dev/null 2>&1; else has "$need"; fi &&
      continue
    missing+="${missing:+,} ${need/#cmake/cmake 3.25 or newer}"
    case "$packages " in *" $package "*) ;; *) packages+=" $package" ;; esac
    case "$formulas " in *" $formula "*) ;; *) formulas+=" $formula" ;; esac
  done
}

# Installs what is missing of the given rows, or says what to install and exits.
set_up() {
  local advice=''
  look_for "$@"
  [ -n "$missing" ] || return 0
  if on_macos; then
    [ -z "${formulas/ xcode/}" ] || advice="brew install${formulas/ xcode/}"
    case "$formulas " in *" xcode "*) advice="xcode-select --install${advice:+; $advice}" ;; esac
  elif ! command -v apt-get >/dev/null; then
    advice="Debian's packages are:$packages"
  elif [ "$(id -u)" -ne 0 ] && ! command -v sudo >/dev/null; then
    advice="As root: apt-get update && apt-get install --no-install-recommends$packages"
  fi
  [ -z "$advice" ] || fail "Missing:$missing" "Install it, then run this again." "  $advice"

  say "Installing$packages with apt-get; this may take some minutes."
  quietly as_root apt-get update || say "Continuing with the present package lists."
  # shellcheck disable=SC2086
  quietly as_root env DEBIAN_FRONTEND=noninteractive apt-get install --yes --no-install-recommends $packages ||
    fail "apt-get could not install$packages."
  hash -r
  look_for "$@"
  [ -z "$missing" ] || fail "Missing:$missing" "The packages of this system do not contain it. Install it from another source."
}
