# The compile options of every target of this project are here and nowhere else.

# These change bits that the numerics promise, and clang has no macro by which numerics/StrictDoubles.h
# could refuse them all. A later -fno-fast-math does not help: -Ofast still links start-up code that
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
  # The numerics promise every bit of their results. A fused multiply-add rounds once where a product
  # and a sum round twice. And where pow has 10 for its base, clang for macOS calls __exp10 instead,
  # which rounds differently, unless it is told that pow is a function like any other.
  -ffp-contract=off
  -fno-builtin-pow
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wmissing-declarations
  $<$<COMPILE_LANGUAGE:CXX>:-fvisibility-inlines-hidden>)

# Hardening of the libraries. Not every processor has each flag, and clang for macOS warns that it ignores
# -fstack-clash-protection. A definition of _FORTIFY_SOURCE by the distribution's compiler or by the user
# stays; it needs optimisation, so debug builds, and with them the sanitizers, are without it.
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

# The C++ standard library, on which the names of C++ linkage and the type std::wstring depend. A header
# tells the library's users.
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

# A shared library NAME.dll that exports the names in its lists and nothing else.
#
#   quvard_shared_library(NAME EXPORTS list...)
#
# A list has one symbol a line, as the platform's compiler spells it without the leading underscore
# of macOS.
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
    # A host may have functions named Min or StrLeft of its own: calls inside the library bind to
    # the library, as they do on macOS anyway.
    target_compile_options(${name} PRIVATE -fno-semantic-interposition)
    target_link_options(${name} PRIVATE
      "LINKER:--version-script,${script}" "LINKER:-Bsymbolic-functions"
      "LINKER:-z,relro" "LINKER:-z,now" "LINKER:-z,noexecstack" "LINKER:-z,text")
  endif()
  file(CONFIGURE OUTPUT "${script}" CONTENT "${content}" @ONLY)
  set_property(TARGET ${name} APPEND PROPERTY LINK_DEPENDS "${script}")
endfunction()

# Lets a library or a program find the libraries in its own folder.
function(quvard_find_libraries_beside target)
  set_target_properties(${target} PROPERTIES
    BUILD_WITH_INSTALL_RPATH ON INSTALL_RPATH "$<IF:$<PLATFORM_ID:Darwin>,@loader_path,$ORIGIN>")
endfunction()
