# Windows on 64 bits.

set(QVN_MINGW_MACHINE x86_64)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)

# Debian's wine64 is not on the path.
find_program(QVN_WINE wine64 HINTS /usr/lib/wine)
if(QVN_WINE)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${QVN_WINE})
endif()
