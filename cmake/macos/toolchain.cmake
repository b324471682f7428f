# Builds for macOS on 64-bit x86 Linux. CMAKE_OSX_ARCHITECTURES and CMAKE_OSX_DEPLOYMENT_TARGET,
# which the presets set, name the processor and the oldest system.

cmake_path(GET CMAKE_BINARY_DIR PARENT_PATH parent)
set(QUVARD_CROSS_COMPILER "${parent}/cross-compiler" CACHE PATH
  "Folder of the cross compiler, which is installed there if it is missing")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES QUVARD_CROSS_COMPILER)

set(packages "${CMAKE_CURRENT_LIST_DIR}/package.json" "${CMAKE_CURRENT_LIST_DIR}/package-lock.json")
file(COPY ${packages} "${CMAKE_CURRENT_LIST_DIR}/c++" DESTINATION "${QUVARD_CROSS_COMPILER}"
  FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
file(SHA256 "${CMAKE_CURRENT_LIST_DIR}/package-lock.json" version)
if(NOT EXISTS "${QUVARD_CROSS_COMPILER}/installed-${version}")
  message(STATUS "Installing the cross compiler; this may take some minutes")
  execute_process(COMMAND npm ci --ignore-scripts --no-audit --no-fund
    WORKING_DIRECTORY "${QUVARD_CROSS_COMPILER}"
    RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "npm cannot install the cross compiler in ${QUVARD_CROSS_COMPILER}: "
                        "${status}\n${output}")
  endif()
  file(TOUCH "${QUVARD_CROSS_COMPILER}/installed-${version}")
endif()

set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_PROCESSOR "${CMAKE_OSX_ARCHITECTURES}")
set(CMAKE_USER_MAKE_RULES_OVERRIDE "${CMAKE_CURRENT_LIST_DIR}/run-paths.cmake")
set(CMAKE_CXX_COMPILER "${QUVARD_CROSS_COMPILER}/c++")
string(REPLACE "arm64" "aarch64" processor "${CMAKE_SYSTEM_PROCESSOR}")
set(CMAKE_CXX_COMPILER_TARGET "${processor}-macos.${CMAKE_OSX_DEPLOYMENT_TARGET}")

# The compiler would link a C++ library of its own into each file, and an exception of one file
# would have another type in the next. The system's own is linked instead, and what its oldest
# version lacks does not compile. Debug information, which holds paths, only on demand.
set(CMAKE_CXX_FLAGS_INIT "-g0 -U_LIBCPP_HAS_VENDOR_AVAILABILITY_ANNOTATIONS \
-D_LIBCPP_HAS_VENDOR_AVAILABILITY_ANNOTATIONS=1")
set(CMAKE_EXE_LINKER_FLAGS_INIT "-nostdlib++")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-nostdlib++")
set(CMAKE_CXX_STANDARD_LIBRARIES_INIT "\"${CMAKE_CURRENT_LIST_DIR}/libc++.tbd\"")
