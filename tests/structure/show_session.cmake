# Fails if a played session is not told to a person word for word as approved.
cmake_minimum_required(VERSION 3.25)

execute_process(COMMAND awk -f ${script} ${shown}/iva.session ${shown}/iva.answers
  OUTPUT_VARIABLE told COMMAND_ERROR_IS_FATAL ANY)
file(READ ${shown}/iva.txt approved)
if(NOT told STREQUAL approved)
  message(FATAL_ERROR "told:\n${told}\napproved:\n${approved}")
endif()
