# Windows on 32 bits.

set(QVN_MINGW_MACHINE i686)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)

# The x87 registers keep a double at 64 bits of mantissa until it is stored, and an amount would round otherwise than on
# other machines. SSE2 keeps 53 bits, as everywhere.
set(CMAKE_C_FLAGS_INIT "-msse2 -mfpmath=sse")
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse")
