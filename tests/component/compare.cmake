# Ends the test unless a program has said what stands in a file.
function(compare program said file)
  file(READ "${file}" expected)
  if(NOT said STREQUAL expected)
    message(FATAL_ERROR "${program} said:\n${said}\ninstead of:\n${expected}")
  endif()
endfunction()
