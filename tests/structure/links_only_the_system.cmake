# Fails if a program in `folder`, or the shared library `component`, is linked to any shared library beyond the
# compiler's own, the C library's, and the component.
cmake_minimum_required(VERSION 3.25)

set(allowed "^(libqvn|libstdc\\+\\+|libgcc_s|libc|libm|libpthread|libgtest|libgtest_main|libgmock|ld-linux[^.]*)\\.so")

file(GLOB programs "${folder}/*")
list(LENGTH programs count)
if(count EQUAL 0)
  message(FATAL_ERROR "no programs in ${folder}")
endif()
foreach(program IN LISTS programs component)
  execute_process(COMMAND ${readelf} -d "${program}" OUTPUT_VARIABLE dynamic COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX MATCHALL "Shared library: \\[[^]]+" needed "${dynamic}")
  if(NOT needed)
    message(FATAL_ERROR "${program} is linked to nothing at all")
  endif()
  foreach(library IN LISTS needed)
    string(REPLACE "Shared library: [" "" library "${library}")
    if(NOT library MATCHES "${allowed}")
      message(SEND_ERROR "${program} is linked to ${library}")
    endif()
  endforeach()
endforeach()
