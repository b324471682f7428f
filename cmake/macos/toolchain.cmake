# Builds for macOS, on Linux on x86-64. The presets set CMAKE_OSX_ARCHITECTURES, the processor, and
# CMAKE_OSX_DEPLOYMENT_TARGET, the oldest system.

cmake_path(GET CMAKE_BINARY_DIR PARENT_PATH parent)
set(QUVARD_CROSS_COMPILER "${parent}/cross-compiler" CACHE PATH
  "Folder of the cross compiler; installed if missing")
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
    message(FATAL_ERROR "npm could not install the cross compiler in ${QUVARD_CROSS_COMPILER}: "
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

# Link the system's C++ library. By default the compiler links its own copy into each file, and exceptions of one
# file have another type in the next. Functions that the oldest system lacks do not compile. No debug
# information by default, because it contains paths.
set(CMAKE_CXX_FLAGS_INIT "-g0 -U_LIBCPP_HAS_VENDOR_AVAILABILITY_ANNOTATIONS \
-D_LIBCPP_HAS_VENDOR_AVAILABILITY_ANNOTATIONS=1")
set(CMAKE_EXE_LINKER_FLAGS_INIT "-nostdlib++")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-nostdlib++")
set(CMAKE_CXX_STANDARD_LIBRARIES_INIT "\"${CMAKE_CURRENT_LIST_DIR}/libc++.tbd\"")
