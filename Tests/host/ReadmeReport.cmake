# Fails unless the README shows the report as the program prints it.
separate_arguments(EMULATOR)
execute_process(COMMAND ${EMULATOR} "${REPORT}" OUTPUT_VARIABLE report COMMAND_ERROR_IS_FATAL ANY)
file(READ "${README}" readme)
string(STRIP "${report}" report)
string(FIND "${readme}" "```text\n${report}\n```" at)
if(at EQUAL -1)
  message(FATAL_ERROR "README.md does not show what the report program prints:\n${report}")
endif()
