# Installation and packages.
include(CMakePackageConfigHelpers)

install(TARGETS QUVARDCR1C QUVARDBS1C EXPORT QUVARDBS1CTargets
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}")
install(FILES
  Sources/Shared/QUVARDBS1C/QUVARDBS1C.h
  Sources/Shared/QUVARDCR1C/QUVARDCR1C.h
  Sources/Shared/QUVARDCR1C/QUVARDCR1C.hpp
  "${PROJECT_BINARY_DIR}/include/QUVARDStandardLibrary.h"
  DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
install(FILES Hosts/VisualBasic/QUVARDBS1C.vb Hosts/VisualBasic/QUVARDBS1C.bas
  DESTINATION "${CMAKE_INSTALL_DATADIR}/QUVARDBS1C")

# The layout of the sources, so that links between the pages work.
set(docDir "${CMAKE_INSTALL_DATAROOTDIR}/doc/quvardbs1c")
install(FILES README.md CHANGELOG.md SECURITY.md DESTINATION "${docDir}")
install(FILES COPYRIGHT DESTINATION "${docDir}" RENAME copyright)
install(DIRECTORY docs Examples DESTINATION "${docDir}"
  FILES_MATCHING PATTERN "*.md" PATTERN "*.svg" PATTERN "*.h" PATTERN "*.cpp" PATTERN doxygen EXCLUDE)

set(packageDir "${CMAKE_INSTALL_LIBDIR}/cmake/QUVARDBS1C")
install(EXPORT QUVARDBS1CTargets NAMESPACE QUVARDBS1C:: FILE QUVARDBS1CConfig.cmake
  DESTINATION "${packageDir}")
# Every later version can replace an earlier one (README.md, "Versions").
write_basic_package_version_file("${CMAKE_CURRENT_BINARY_DIR}/QUVARDBS1CConfigVersion.cmake"
  COMPATIBILITY AnyNewerVersion)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/QUVARDBS1CConfigVersion.cmake"
  DESTINATION "${packageDir}")

# InstallPaths.cmake, at installation, writes what depends on the folder.
# pkg-config quotes blanks in options, but neither after -Wl nor in a plain path. --library-path repeats -L,
# because CMake drops -L when it reads these flags.
set(linkFlags "-L\${libdir} -l:QUVARDBS1C.dll -l:QUVARDCR1C.dll --for-linker=-rpath=\${libdir} --for-linker=--library-path=\${libdir}")
if(APPLE)
  set(linkFlags "\${libdir}/QUVARDBS1C.dll \${libdir}/QUVARDCR1C.dll -Wl,-rpath,\${libdir}")
endif()
configure_file(cmake/InstallPaths.cmake.in InstallPaths.cmake @ONLY)
install(SCRIPT "${CMAKE_CURRENT_BINARY_DIR}/InstallPaths.cmake")

# A parent project has its own packages.
if(PROJECT_IS_TOP_LEVEL)
  add_custom_target(uninstall
    COMMAND "${CMAKE_COMMAND}" "-DMANIFEST=${CMAKE_BINARY_DIR}/install_manifest.txt"
      -P "${PROJECT_SOURCE_DIR}/cmake/Uninstall.cmake" VERBATIM)

  # The changes of this version in Debian's format, for packages only.
  file(READ CHANGELOG.md changes)
  string(REGEX REPLACE "^.*\n## ${PROJECT_VERSION}\n" "\n" changes "${changes}")
  string(FIND "${changes}" "\n## " end)
  string(SUBSTRING "${changes}" 0 ${end} changes)
  string(REGEX REPLACE "\n([^\n])" "\n  \\1" changes "${changes}")
  file(TIMESTAMP CHANGELOG.md date "%a, %d %b %Y %H:%M:%S +0000" UTC)
  set(maintainer "The QUVARDBS1C developers <maintainers@users.noreply.invalid>")
  set(changelog "${CMAKE_CURRENT_BINARY_DIR}/changelog")
  file(WRITE "${changelog}"
    "quvardbs1c (${PROJECT_VERSION}) unstable; urgency=medium\n${changes} -- ${maintainer}  ${date}\n")
  execute_process(COMMAND gzip -9nf "${changelog}")
  install(FILES "${changelog}.gz" DESTINATION "${docDir}" COMPONENT packages EXCLUDE_FROM_ALL)
  install(FILES cmake/quvardbs1c.lintian-overrides DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/lintian/overrides"
    RENAME quvardbs1c COMPONENT packages EXCLUDE_FROM_ALL)

  set(CPACK_GENERATOR TGZ DEB)
  set(CPACK_INSTALL_CMAKE_PROJECTS
    "${CMAKE_BINARY_DIR};${PROJECT_NAME};ALL;/;${CMAKE_BINARY_DIR};${PROJECT_NAME};packages;/")
  # CPack creates folders with the current umask, and CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS does not undo a
  # umask of 077.
  set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_BINARY_DIR}/PackageModes.cmake")
  file(WRITE "${CPACK_PRE_BUILD_SCRIPTS}" [[
file(CHMOD_RECURSE "${CPACK_TEMPORARY_INSTALL_DIRECTORY}" DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
]])
  set(CPACK_PACKAGE_NAME quvardbs1c)
  set(CPACK_PACKAGE_VENDOR "The QUVARDBS1C developers")
  set(CPACK_PACKAGE_CONTACT "${maintainer}")
  set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "base library of a statistical analysis product")
  set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "Stateless routines for macro code, C and C++: text, report phrases in ten
languages, number patterns and numerics. The package contains headers, files
for CMake and pkg-config, declarations for Visual Basic and documentation.")
  set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
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
