# Fails unless every source that computes in doubles refuses -ffast-math, and the header (g++) or CMake
# refuses each option that changes the bits of results.
set(library "${ROOT}/Sources/Shared/QUVARDBS1C")
set(message "numerics promise IEEE doubles")
set(failures "")

macro(expect_refusal option)
  execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT output MATCHES "${message}")
    string(APPEND failures "\n${option} is not refused: ${ARGN}")
  endif()
endmacro()
set(compile "${COMPILER}" -std=c++20 -E "-I${library}" "-I${ROOT}/Sources/Shared/QUVARDCR1C"
  "-I${GENERATED}")

file(GLOB_RECURSE sources "${library}/*.cpp")
list(FILTER sources EXCLUDE REGEX "/Swaps.cpp$")  # computes nothing
foreach(source IN LISTS sources)
  file(STRINGS "${source}" doubles REGEX "^[^/]*double ")
  if(doubles)
    expect_refusal(-ffast-math ${compile} -ffast-math "${source}")
  endif()
endforeach()

set(options -Ofast -ffinite-math-only -funsafe-math-optimizations -freciprocal-math -fno-signed-zeros)
foreach(option IN LISTS options)
  if(COMPILER_ID STREQUAL "GNU")
    expect_refusal(${option} ${compile} ${option} "${library}/numerics/Gamma.cpp")
  endif()
endforeach()
file(REMOVE_RECURSE "${FOLDER}")
foreach(option IN LISTS options ITEMS -fassociative-math)
  expect_refusal(${option} "${CMAKE_COMMAND}" -S "${ROOT}" -B "${FOLDER}" "-DCMAKE_CXX_COMPILER=${COMPILER}"
    "-DCMAKE_CXX_FLAGS=-O2 ${option}")
endforeach()
if(failures)
  message(FATAL_ERROR "${failures}")
endif()
