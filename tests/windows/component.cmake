# The component as Windows sees it: qvn.dll shows the functions of its header by their plain names, and needs nothing that
# Windows does not have.
cmake_minimum_required(VERSION 3.25)

execute_process(COMMAND ${objdump} -p "${library}" OUTPUT_VARIABLE told COMMAND_ERROR_IS_FATAL ANY)

# The table of names: "\t[   0] DllCanUnloadNow".
string(REGEX MATCHALL "\n\t\\[ *[0-9]+\\] [^+\n][^\n]*" rows "${told}")
list(TRANSFORM rows REPLACE "^\n\t\\[ *[0-9]+\\] ([^\r]*)\r?$" "\\1" OUTPUT_VARIABLE exported)

file(STRINGS "${header}" declarations REGEX "^QVN_API ")
list(TRANSFORM declarations REPLACE "^QVN_API [^(]*[ *]([A-Za-z_]+)\\(.*$" "\\1" OUTPUT_VARIABLE declared)
foreach(entry DllRegisterServer DllUnregisterServer DllGetClassObject DllCanUnloadNow)
  if(NOT entry IN_LIST declared)
    message(FATAL_ERROR "${header} does not declare ${entry}")
  endif()
endforeach()

list(SORT declared)
list(SORT exported)
if(NOT exported STREQUAL declared)
  message(FATAL_ERROR "declared: ${declared}\nexported: ${exported}")
endif()

if(NOT told MATCHES "\nName[ \t]+[0-9a-f]+ qvn[.]dll")
  message(FATAL_ERROR "${library} does not call itself qvn.dll")
endif()

string(REGEX MATCHALL "DLL Name: [^\r\n]+" needed "${told}")
list(TRANSFORM needed REPLACE "^DLL Name: " "")
foreach(dll IN LISTS needed)
  if(NOT dll MATCHES "^(KERNEL32|msvcrt)[.]dll$")
    message(FATAL_ERROR "${library} needs ${dll}")
  endif()
endforeach()
if(NOT "KERNEL32.dll" IN_LIST needed)
  message(FATAL_ERROR "the libraries that ${library} needs are not told: ${told}")
endif()

# On 32 bits the entry points are compiled under their calling convention, which marks them inside the library, and the
# other functions under that of C. Hosts that are linked to it ask for the marks.
if(pointer EQUAL 4)
  execute_process(COMMAND ${nm} "${library}" OUTPUT_VARIABLE inside COMMAND_ERROR_IS_FATAL ANY)
  foreach(name DllRegisterServer@0 DllUnregisterServer@0 DllGetClassObject@12 DllCanUnloadNow@0 qvn_get qvn_on_changed)
    if(NOT inside MATCHES " T _${name}\r?\n")
      message(FATAL_ERROR "${library} has no ${name} inside: its calling convention is another")
    endif()
  endforeach()
  execute_process(COMMAND ${nm} "${linked}" OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
  foreach(entry DllRegisterServer@0 DllUnregisterServer@0 DllGetClassObject@12 DllCanUnloadNow@0)
    if(NOT symbols MATCHES " T _${entry}\n")
      message(FATAL_ERROR "${linked} does not lead to ${entry}")
    endif()
  endforeach()
endif()
