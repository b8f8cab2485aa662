# Installs the build tree `build` into an empty prefix, builds projects against what lies there, and runs them.
cmake_minimum_required(VERSION 3.25)

set(prefix "${work}/prefix")
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

# Builds a project of one program of its name, somewhere with nothing but the prefix to find, and runs it.
function(build_and_run project)
  cmake_path(GET project FILENAME name)
  file(REMOVE_RECURSE "${work}/${name}")
  file(COPY "${project}" DESTINATION "${work}")
  execute_process(
    COMMAND ${CMAKE_COMMAND} -S "${work}/${name}" -B "${work}/${name}/build" -G "${generator}"
      "-DCMAKE_CXX_COMPILER=${compiler}" "-DCMAKE_CXX_FLAGS=${flags}" "-DCMAKE_PREFIX_PATH=${prefix}"
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND ${CMAKE_COMMAND} --build "${work}/${name}/build" OUTPUT_VARIABLE output RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${name} does not build against the package:\n${output}")
  endif()
  execute_process(COMMAND "${work}/${name}/build/${name}" OUTPUT_VARIABLE said COMMAND_ERROR_IS_FATAL ANY)
  file(READ "${source}/tests/package/${name}.txt" expected)
  if(NOT said STREQUAL expected)
    message(FATAL_ERROR "${name} said:\n${said}\ninstead of:\n${expected}")
  endif()
endfunction()

build_and_run("${source}/examples/host")
if(sqlite)
  build_and_run("${source}/tests/package/everything")
endif()
