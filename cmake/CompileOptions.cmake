# The compile options of all targets.

# These options change bits of numeric results. numerics/StrictDoubles.h cannot refuse all of them, because clang
# does not define a macro for each. Appending -fno-fast-math is no remedy: -Ofast still links start-up code that
# flushes subnormals in the whole process.
string(TOUPPER "${CMAKE_BUILD_TYPE}" type)
get_directory_property(directoryOptions COMPILE_OPTIONS)
if("${CMAKE_CXX_FLAGS} ${CMAKE_CXX_FLAGS_${type}} ${CMAKE_SHARED_LINKER_FLAGS} ${directoryOptions}" MATCHES
   "-(Ofast|ffast-math|ffp-model=fast|ffinite-math-only|funsafe-math-optimizations|fassociative-math|freciprocal-math|fno-signed-zeros|fno-honor-nans|fno-honor-infinities|fapprox-func)")
  message(FATAL_ERROR "The numerics promise IEEE doubles bit by bit: configure without ${CMAKE_MATCH_0}.")
endif()

add_library(QUVARDCompileOptions INTERFACE)
target_compile_features(QUVARDCompileOptions INTERFACE cxx_std_20)
target_compile_options(QUVARDCompileOptions INTERFACE
  -fvisibility=hidden
  # Both change bits of numeric results. A fused multiply-add rounds once instead of twice. For pow(10, x),
  # clang for macOS calls __exp10, which rounds differently.
  -ffp-contract=off
  -fno-builtin-pow
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wmissing-declarations
  $<$<COMPILE_LANGUAGE:CXX>:-fvisibility-inlines-hidden>)

# Hardening of the libraries. Some processors lack some flags, and clang for macOS warns that it ignores
# -fstack-clash-protection. _FORTIFY_SOURCE is not redefined if the compiler or the user defines it. It needs
# optimisation, so debug and sanitizer builds do not define it.
include(CheckCXXCompilerFlag)
include(CheckCXXSymbolExists)
set(hardening -fstack-protector-strong)
if(NOT APPLE)
  list(APPEND hardening -fstack-clash-protection -fcf-protection)
endif()
foreach(flag IN LISTS hardening)
  string(MAKE_C_IDENTIFIER "QUVARD${flag}" accepted)
  check_cxx_compiler_flag(${flag} ${accepted})
  if(NOT ${accepted})
    list(REMOVE_ITEM hardening ${flag})
  endif()
endforeach()
set(CMAKE_REQUIRED_FLAGS -O2)
check_cxx_symbol_exists(_FORTIFY_SOURCE "" QUVARD_FORTIFIED)
unset(CMAKE_REQUIRED_FLAGS)
if(NOT QUVARD_FORTIFIED)
  list(APPEND hardening $<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-D_FORTIFY_SOURCE=2>)
endif()

# Encoded names and std::wstring depend on the C++ standard library. A generated header checks that users have
# the same one.
check_cxx_symbol_exists(_LIBCPP_VERSION "string" QUVARDBS1C_ON_LIBCPP)
set(standardLibrary libstdc++)
set(otherLibrary libc++)
set(isOtherLibrary "defined(_LIBCPP_VERSION)")
if(QUVARDBS1C_ON_LIBCPP)
  set(standardLibrary libc++)
  set(otherLibrary libstdc++)
  set(isOtherLibrary "!defined(_LIBCPP_VERSION)")
endif()
configure_file(Sources/Shared/QUVARDCR1C/QUVARDStandardLibrary.h.in include/QUVARDStandardLibrary.h @ONLY)

# Makes NAME a shared library NAME.dll that exports only the symbols in the files.
#
#   quvard_shared_library(NAME EXPORTS file...)
#
# A file has one symbol per line, without the leading underscore of macOS.
function(quvard_shared_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "EXPORTS")
  set(symbols "")
  foreach(list IN LISTS arg_EXPORTS)
    file(STRINGS "${list}" lines REGEX "^[^#]")
    list(APPEND symbols ${lines})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${list}")
  endforeach()

  target_link_libraries(${name} PRIVATE $<BUILD_INTERFACE:QUVARDCompileOptions>)
  target_compile_options(${name} PRIVATE ${hardening})
  target_include_directories(${name} PUBLIC
    $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}> $<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/include>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
  set_target_properties(${name} PROPERTIES
    PREFIX "" SUFFIX ".dll" DEBUG_POSTFIX "")

  if(APPLE)
    list(TRANSFORM symbols PREPEND "_")
    set(script "${CMAKE_CURRENT_BINARY_DIR}/${name}.exports")
    list(JOIN symbols "\n" content)
    set(content "${content}\n")
    target_link_options(${name} PRIVATE "LINKER:-exported_symbols_list,${script}")
  else()
    set(script "${CMAKE_CURRENT_BINARY_DIR}/${name}.map")
    list(JOIN symbols ";\n    " content)
    set(content "{\n  global:\n    ${content};\n  local:\n    *;\n};\n")
    # Calls inside the library bind to the library even if the host has functions named Min or StrLeft. On macOS
    # this is the default.
    target_compile_options(${name} PRIVATE -fno-semantic-interposition)
    target_link_options(${name} PRIVATE
      "LINKER:--version-script,${script}" "LINKER:-Bsymbolic-functions"
      "LINKER:-z,relro" "LINKER:-z,now" "LINKER:-z,noexecstack" "LINKER:-z,text")
  endif()
  file(CONFIGURE OUTPUT "${script}" CONTENT "${content}" @ONLY)
  set_property(TARGET ${name} APPEND PROPERTY LINK_DEPENDS "${script}")
endfunction()

# Makes a library or a program search its own folder for the libraries.
function(quvard_find_libraries_beside target)
  set_target_properties(${target} PROPERTIES
    BUILD_WITH_INSTALL_RPATH ON INSTALL_RPATH "$<IF:$<PLATFORM_ID:Darwin>,@loader_path,$ORIGIN>")
endfunction()
