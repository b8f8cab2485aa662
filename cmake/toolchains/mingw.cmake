# Debian's MinGW-w64, for the machine named in QVN_MINGW_MACHINE.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR ${QVN_MINGW_MACHINE})

# The threads of the standard library are those of POSIX: the others have no std::mutex.
set(CMAKE_C_COMPILER ${QVN_MINGW_MACHINE}-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER ${QVN_MINGW_MACHINE}-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER ${QVN_MINGW_MACHINE}-w64-mingw32-windres)

# What is linked stands alone: no library of the compiler has to travel with it.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(CMAKE_SHARED_LINKER_FLAGS_INIT -static)
set(CMAKE_MODULE_LINKER_FLAGS_INIT -static)

# Headers and libraries are those of Windows, programs those of this machine. SQLite is what sqlite_for_windows builds.
cmake_path(SET root NORMALIZE ${CMAKE_CURRENT_LIST_DIR}/../..)
set(CMAKE_FIND_ROOT_PATH /usr/${QVN_MINGW_MACHINE}-w64-mingw32 ${root}/build/sqlite/${QVN_MINGW_MACHINE})
unset(root)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
