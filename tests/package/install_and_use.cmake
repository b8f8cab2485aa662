# Installs the build tree `build` into the empty folder `prefix`, builds a program against what lies there, and runs it.
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE "${prefix}")
execute_process(COMMAND ${CMAKE_COMMAND} --install "${build}" --prefix "${prefix}"
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)

file(GLOB_RECURSE installed RELATIVE "${prefix}" "${prefix}/*")
set(expected include/qvn/panels/master/ctlIVA.h include/platforms/operator.h include/platforms/memory/platform.h
  LICENSE qvn-config.cmake qvn-config-version.cmake)
if(sqlite)
  list(APPEND expected include/platforms/sqlite/driver.h bin/qvn-play bin/qvn-campione)
endif()
foreach(file IN LISTS expected)
  if(NOT "${installed}" MATCHES "(^|;|/)${file}(;|$)")
    message(FATAL_ERROR "${file} is not installed; what is: ${installed}")
  endif()
endforeach()

# A program that links all libraries, built somewhere with nothing but the prefix to find.
if(sqlite)
  file(REMOVE_RECURSE "${work}/everything")
  file(COPY "${source}/tests/package/everything" DESTINATION "${work}")
  execute_process(
    COMMAND ${CMAKE_COMMAND} -S "${work}/everything" -B "${work}/everything/build" -G "${generator}"
      "-DCMAKE_CXX_COMPILER=${compiler}" "-DCMAKE_CXX_FLAGS=${flags}" "-DCMAKE_PREFIX_PATH=${prefix}"
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND ${CMAKE_COMMAND} --build "${work}/everything/build"
    OUTPUT_VARIABLE output RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "everything does not build against the package:\n${output}")
  endif()
  execute_process(COMMAND "${work}/everything/build/everything" OUTPUT_VARIABLE said COMMAND_ERROR_IS_FATAL ANY)
  file(READ "${source}/tests/package/everything.txt" expected)
  if(NOT said STREQUAL expected)
    message(FATAL_ERROR "everything said:\n${said}\ninstead of:\n${expected}")
  endif()
endif()
