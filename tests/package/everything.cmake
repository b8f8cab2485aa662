# everything_runs(PREFIX WORK): builds a program that links all libraries in the folder WORK, with nothing but PREFIX to
# find the package in, and runs it. Reads source, generator, compiler and flags.
function(everything_runs prefix work)
  file(REMOVE_RECURSE "${work}")
  file(COPY "${source}/tests/package/everything/" DESTINATION "${work}")
  execute_process(
    COMMAND ${CMAKE_COMMAND} -S "${work}" -B "${work}/build" -G "${generator}"
      "-DCMAKE_CXX_COMPILER=${compiler}" "-DCMAKE_CXX_FLAGS=${flags}" "-DCMAKE_PREFIX_PATH=${prefix}"
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND ${CMAKE_COMMAND} --build "${work}/build" OUTPUT_VARIABLE output RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "everything does not build against ${prefix}:\n${output}")
  endif()
  execute_process(COMMAND "${work}/build/everything" OUTPUT_VARIABLE said COMMAND_ERROR_IS_FATAL ANY)
  file(READ "${source}/tests/package/everything.txt" expected)
  if(NOT said STREQUAL expected)
    message(FATAL_ERROR "everything said:\n${said}\ninstead of:\n${expected}")
  endif()
endfunction()
