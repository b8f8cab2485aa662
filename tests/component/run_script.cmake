# Runs the host `script` by the interpreter `program` on the library `library`, and compares what it says with the text
# `expected`.
cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/compare.cmake)

execute_process(COMMAND "${program}" -S "${script}" "${library}" OUTPUT_VARIABLE said COMMAND_ERROR_IS_FATAL ANY)
compare("${script}" "${said}" "${expected}")
