# Fails unless a Visual Basic program prints the same bytes as the C++ report program in every locale, and
# reports errors in the same way.
file(MAKE_DIRECTORY "${FOLDER}")
foreach(locale C C.UTF-8 de_DE.ISO-8859-1)
  foreach(arguments "" "état;Größe 𝄞")
    execute_process(COMMAND "${CMAKE_COMMAND}" -E env "LC_ALL=${locale}" "${REPORT}" ${arguments}
      OUTPUT_FILE "${FOLDER}/expected" COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND "${CMAKE_COMMAND}" -E env "LC_ALL=${locale}"
      "${DOTNET}" "${PROGRAM}" ${arguments}
      OUTPUT_FILE "${FOLDER}/printed" COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND diff expected printed WORKING_DIRECTORY "${FOLDER}"
      RESULT_VARIABLE difference)
    if(NOT difference EQUAL 0)
      message(FATAL_ERROR "LC_ALL=${locale} ${PROGRAM} ${arguments}: output differs from that of ${REPORT}")
    endif()
  endforeach()
endforeach()

execute_process(COMMAND "${DOTNET}" "${PROGRAM}" alone
  RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE error)
if(NOT status EQUAL 2 OR NOT output STREQUAL "" OR NOT error MATCHES "^usage: ")
  message(FATAL_ERROR "${PROGRAM} alone: status ${status}, message: ${error}")
endif()
if(EXISTS /dev/full)
  execute_process(COMMAND "${DOTNET}" "${PROGRAM}" OUTPUT_FILE /dev/full
    RESULT_VARIABLE status ERROR_VARIABLE error)
  if(NOT status EQUAL 1 OR NOT error MATCHES "^report: ")
    message(FATAL_ERROR "${PROGRAM} with a full disk: status ${status}, message: ${error}")
  endif()
endif()
