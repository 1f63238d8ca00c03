# The distribution's compiler for 64-bit Windows. The variant with POSIX
# threads: the other one's library lacks std::thread.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(tool x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${tool}-gcc-posix)
set(CMAKE_CXX_COMPILER ${tool}-g++-posix)
set(CMAKE_RC_COMPILER ${tool}-windres)
list(APPEND CMAKE_FIND_ROOT_PATH /usr/${tool})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# One file that runs by itself: the compiler's own libraries go into it.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
