# Fails if README.md does not show the panel as the session player draws it.
cmake_minimum_required(VERSION 3.25)

execute_process(COMMAND ${player} --strict ${shown}/readme.session OUTPUT_VARIABLE answers COMMAND_ERROR_IS_FATAL ANY)
file(WRITE ${work}/readme.answers "${answers}")
execute_process(COMMAND awk -f ${script} ${shown}/readme.session ${work}/readme.answers
  OUTPUT_VARIABLE told COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "^.*The panel iva:\n" "" picture "${told}")
file(READ ${readme} text)
string(FIND "${text}" "\n\n${picture}\n" found)
if(picture STREQUAL "" OR found EQUAL -1)
  message(FATAL_ERROR "README.md does not show:\n${picture}")
endif()
