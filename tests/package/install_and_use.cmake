# Installs the build tree `build` into the empty folder `prefix`, builds a program against what lies there, and runs it.
cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/everything.cmake)

file(REMOVE_RECURSE "${prefix}")
execute_process(COMMAND ${CMAKE_COMMAND} --install "${build}" --prefix "${prefix}"
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)

file(GLOB_RECURSE installed RELATIVE "${prefix}" "${prefix}/*")
set(expected include/qvn/panels/master/ctlIVA.h include/platforms/operator.h include/platforms/memory/platform.h
  LICENSE qvn-config.cmake qvn-config-version.cmake)
if(sqlite)
  list(APPEND expected include/platforms/sqlite/driver.h bin/qvn-campione)
endif()
if(play)
  list(APPEND expected bin/qvn-play)
endif()
foreach(file IN LISTS expected)
  if(NOT "${installed}" MATCHES "(^|;|/)${file}(;|$)")
    message(FATAL_ERROR "${file} is not installed; what is: ${installed}")
  endif()
endforeach()

if(sqlite)
  everything_runs("${prefix}" "${work}/everything")
endif()
