# Takes the sample `sample` out of the page `page`, builds it against the package in `prefix`, runs it, and compares
# what it says with the output that the page shows.
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE "${work}")
file(MAKE_DIRECTORY "${work}")
execute_process(COMMAND awk -v sample=${sample} -v folder=${work} -f ${CMAKE_CURRENT_LIST_DIR}/extract.awk "${page}"
  COMMAND_ERROR_IS_FATAL ANY)

execute_process(
  COMMAND ${CMAKE_COMMAND} -S "${work}" -B "${work}/build" -G "${generator}" "-DCMAKE_C_COMPILER=${c_compiler}"
    "-DCMAKE_CXX_COMPILER=${compiler}" "-DCMAKE_CXX_FLAGS=${flags}" "-DCMAKE_PREFIX_PATH=${prefix}"
    --no-warn-unused-cli
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --build "${work}/build" OUTPUT_VARIABLE output RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "the sample ${sample} of ${page} does not build:\n${output}")
endif()

# A page tells how a sample is run where that is more than to call it.
if(NOT EXISTS "${work}/run")
  file(WRITE "${work}/run" "build/host\n")
endif()
set(ENV{PATH} "${prefix}/bin:$ENV{PATH}")
execute_process(COMMAND sh -eu run WORKING_DIRECTORY "${work}" OUTPUT_VARIABLE said COMMAND_ERROR_IS_FATAL ANY)
file(READ "${work}/output" expected)
if(NOT said STREQUAL expected)
  message(FATAL_ERROR "the sample ${sample} of ${page} said:\n${said}\ninstead of:\n${expected}")
endif()
