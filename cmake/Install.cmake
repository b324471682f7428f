# What `cmake --install` puts where, and the packages that CPack makes of it.
include(CMakePackageConfigHelpers)

install(TARGETS QUVARDCR1C QUVARDBS1C EXPORT QUVARDBS1CTargets
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}")
install(FILES
  Sources/Shared/QUVARDBS1C/QUVARDBS1C.h
  Sources/Shared/QUVARDCR1C/QUVARDCR1C.h
  "${PROJECT_BINARY_DIR}/include/QUVARDStandardLibrary.h"
  DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
install(FILES Hosts/VisualBasic/QUVARDBS1C.vb Hosts/VisualBasic/QUVARDBS1C.bas
  DESTINATION "${CMAKE_INSTALL_DATADIR}/QUVARDBS1C")

set(packageDir "${CMAKE_INSTALL_LIBDIR}/cmake/QUVARDBS1C")
install(EXPORT QUVARDBS1CTargets NAMESPACE QUVARDBS1C:: FILE QUVARDBS1CConfig.cmake
  DESTINATION "${packageDir}")
# Every later version takes the place of an earlier one (README.md, "Versions").
write_basic_package_version_file("${CMAKE_CURRENT_BINARY_DIR}/QUVARDBS1CConfigVersion.cmake"
  COMPATIBILITY AnyNewerVersion)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/QUVARDBS1CConfigVersion.cmake"
  DESTINATION "${packageDir}")

# What depends on the folder of the installation is made when that is known.
# pkg-config quotes blanks in the words of an option with one dash or two, but not after -Wl, and not
# in a path alone. The linker is told the folder once more, since CMake reads these flags and then
# drops -L.
set(linkFlags "-L\${libdir} -l:QUVARDBS1C.dll -l:QUVARDCR1C.dll --for-linker=-rpath=\${libdir} --for-linker=--library-path=\${libdir}")
if(APPLE)
  set(linkFlags "\${libdir}/QUVARDBS1C.dll \${libdir}/QUVARDCR1C.dll -Wl,-rpath,\${libdir}")
endif()
configure_file(cmake/InstallPaths.cmake.in InstallPaths.cmake @ONLY)
install(SCRIPT "${CMAKE_CURRENT_BINARY_DIR}/InstallPaths.cmake")

# A parent project makes packages of its own.
if(PROJECT_IS_TOP_LEVEL)
  set(CPACK_GENERATOR TGZ DEB)
  set(CPACK_PACKAGE_NAME quvardbs1c)
  set(CPACK_PACKAGE_VENDOR "The QUVARDBS1C developers")
  set(CPACK_PACKAGE_CONTACT "The QUVARDBS1C developers <maintainers@users.noreply.invalid>")
  set(CPACK_PACKAGE_FILE_NAME
    "quvardbs1c-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR}")
  set(CPACK_PACKAGE_CHECKSUM SHA256)
  set(CPACK_STRIP_FILES ON)
  set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
  set(CPACK_DEBIAN_PACKAGE_SECTION libdevel)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
  include(CPack)
endif()
