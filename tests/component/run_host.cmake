# Runs the host in C on a copy of `database` and compares what it says with the text `expected`: the program `program`,
# with the library `library` where it loads one; or, with `build`, each program that is built from `project` against
# the package installed from there.
cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/compare.cmake)

function(play program)
  file(COPY_FILE "${database}" "${work}/ufficio.db")
  execute_process(COMMAND "${program}" "${work}/ufficio.db" ${ARGN} OUTPUT_VARIABLE said COMMAND_ERROR_IS_FATAL ANY)
  compare("${program}" "${said}" "${expected}")
endfunction()

function(run)
  execute_process(COMMAND ${ARGV} OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endfunction()

file(REMOVE_RECURSE "${work}")
file(MAKE_DIRECTORY "${work}")
if(NOT build)
  play("${program}" ${library})
  return()
endif()

set(prefix "${work}/prefix")
run(${CMAKE_COMMAND} --install "${build}" --prefix "${prefix}" --component development)
run(${CMAKE_COMMAND} --install "${build}" --prefix "${prefix}" --component library)
run(${CMAKE_COMMAND} -S "${project}" -B "${work}/build" -G "${generator}" "-DCMAKE_C_COMPILER=${cc}"
  "-DCMAKE_PREFIX_PATH=${prefix}")
run(${CMAKE_COMMAND} --build "${work}/build")
set(installed "${prefix}/${libdir}/libqvn.so.0")
play("${work}/build/host")
play("${work}/build/loading_host" "${installed}")

# The same without CMake.
if(pkgconfig)
  set(ENV{PKG_CONFIG_PATH} "${prefix}/${libdir}/pkgconfig")
  execute_process(COMMAND ${pkgconfig} --cflags --libs qvn sqlite3 OUTPUT_VARIABLE flags COMMAND_ERROR_IS_FATAL ANY
    OUTPUT_STRIP_TRAILING_WHITESPACE)
  separate_arguments(flags UNIX_COMMAND "${flags}")
  run(${cc} -std=c99 -Wall -Wextra -Wpedantic -Werror "${project}/host.c" -o "${work}/plain_host" ${flags})
  set(ENV{LD_LIBRARY_PATH} "${prefix}/${libdir}")
  play("${work}/plain_host")
endif()
