# Fails unless the report program names the missing library and returns an error status.
file(MAKE_DIRECTORY "${FOLDER}")
file(COPY_FILE "${REPORT}" "${FOLDER}/report")
separate_arguments(EMULATOR)
execute_process(COMMAND ${EMULATOR} "${FOLDER}/report"
  RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE message)
if(status EQUAL 0 OR NOT message MATCHES "^report: cannot load QUVARD[A-Z0-9]+\\.dll")
  message(FATAL_ERROR "status ${status}, message: ${message}")
endif()
