# Ways to install and use the library: see consumers.sh.
set(ways
  add_subdirectory
  fetch_content
  without_install_rules
  "find_package CXX\\;C"
  "find_package C"
  "pkg_config lib"
  "pkg_config lib64"
  "pkg_config lib/x86_64-linux-gnu"
  "pkg_config absolute"
  pkg_config_moved
  pkg_config_blanks
  pkg_check_modules
  load
  uninstall
  static
  other_library)
foreach(way IN LISTS ways)
  separate_arguments(arguments UNIX_COMMAND "${way}")
  string(REPLACE " " "." name "Consumer.${way}")
  add_test(NAME "${name}"
    COMMAND bash "${CMAKE_CURRENT_SOURCE_DIR}/consumer/consumers.sh" ${arguments})
  # Not in parallel, because they share a build tree.
  set_tests_properties("${name}" PROPERTIES
    LABELS consumer TIMEOUT 600 RESOURCE_LOCK consumers SKIP_RETURN_CODE 77 ENVIRONMENT
    "STANDARD_LIBRARY=${standardLibrary};OTHER_LIBRARY=${otherLibrary};SOURCES=${PROJECT_SOURCE_DIR};BUILT=${PROJECT_BINARY_DIR};WORK=${CMAKE_CURRENT_BINARY_DIR}/consumer;CC=${CMAKE_C_COMPILER};CXX=${CMAKE_CXX_COMPILER};CFLAGS=${CMAKE_C_FLAGS};CXXFLAGS=${CMAKE_CXX_FLAGS}")
endforeach()
