# Tests that install the library and build the consumer against it.
set(prefix "${CMAKE_CURRENT_BINARY_DIR}/installed")
add_test(NAME Consumer.Install
  COMMAND "${CMAKE_COMMAND}" --install "${PROJECT_BINARY_DIR}" --prefix "${prefix}")
set_tests_properties(Consumer.Install PROPERTIES FIXTURES_SETUP installed)

foreach(way find_package add_subdirectory)
  add_test(NAME Consumer.${way}
    COMMAND "${CMAKE_CTEST_COMMAND}" --build-and-test
      "${CMAKE_CURRENT_SOURCE_DIR}/consumer" "${CMAKE_CURRENT_BINARY_DIR}/consumer-${way}"
      --build-noclean --build-generator "${CMAKE_GENERATOR}" --build-makeprogram "${CMAKE_MAKE_PROGRAM}"
      --build-options
        -DCONSUMER_WAY=${way}
        "-DCONSUMER_SOURCES=${PROJECT_SOURCE_DIR}"
        "-DCMAKE_PREFIX_PATH=${prefix}"
        "-DCMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER}"
        "-DCMAKE_CXX_FLAGS=${CMAKE_CXX_FLAGS}"
      --test-command consumer)
  set_tests_properties(Consumer.${way} PROPERTIES FIXTURES_REQUIRED installed TIMEOUT 600)
endforeach()

find_program(PKG_CONFIG NAMES pkg-config pkgconf)
if(PKG_CONFIG)
  set(consumer "${CMAKE_CURRENT_BINARY_DIR}/consumer-pkg-config")
  set(libdir "${prefix}/${CMAKE_INSTALL_LIBDIR}")
  set(flags "$('${PKG_CONFIG}' --cflags --libs QUVARDBS1C)")
  add_test(NAME Consumer.pkg_config COMMAND sh -c
    "'${CMAKE_CXX_COMPILER}' ${CMAKE_CXX_FLAGS} -o '${consumer}' '${CMAKE_CURRENT_SOURCE_DIR}/consumer/consumer.cpp' ${flags} '-Wl,-rpath,${libdir}' && '${consumer}'")
  set_tests_properties(Consumer.pkg_config PROPERTIES FIXTURES_REQUIRED installed
    ENVIRONMENT "PKG_CONFIG_PATH=${libdir}/pkgconfig")
endif()
