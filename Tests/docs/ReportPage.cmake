# Fails unless the page has the report as the program prints it.
separate_arguments(EMULATOR)
execute_process(COMMAND ${EMULATOR} "${REPORT}" OUTPUT_VARIABLE report COMMAND_ERROR_IS_FATAL ANY)
file(READ "${PAGE}" page)
string(STRIP "${report}" report)
string(FIND "${page}" "```text\n${report}\n```" at)
if(at EQUAL -1)
  message(FATAL_ERROR "${PAGE} does not contain the output of the report program:\n${report}")
endif()
