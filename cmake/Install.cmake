include(CMakePackageConfigHelpers)

install(TARGETS QUVARDCR1C QUVARDBS1C EXPORT QUVARDBS1CTargets
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}")
install(FILES
  Sources/Shared/QUVARDBS1C/QUVARDBS1C.h
  Sources/Shared/QUVARDCR1C/QUVARDCR1C.h
  DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")

set(packageDir "${CMAKE_INSTALL_LIBDIR}/cmake/QUVARDBS1C")
install(EXPORT QUVARDBS1CTargets NAMESPACE QUVARDBS1C:: FILE QUVARDBS1CConfig.cmake
  DESTINATION "${packageDir}")
write_basic_package_version_file("${CMAKE_CURRENT_BINARY_DIR}/QUVARDBS1CConfigVersion.cmake"
  COMPATIBILITY SameMajorVersion)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/QUVARDBS1CConfigVersion.cmake"
  DESTINATION "${packageDir}")

configure_file(cmake/QUVARDBS1C.pc.in QUVARDBS1C.pc @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/QUVARDBS1C.pc"
  DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")

# The same name in a build tree that takes this project in as a subdirectory.
add_library(QUVARDBS1C::QUVARDBS1C ALIAS QUVARDBS1C)
add_library(QUVARDBS1C::QUVARDCR1C ALIAS QUVARDCR1C)
