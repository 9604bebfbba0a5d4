# Cross-compiles for 64-bit Windows with Debian's mingw-w64.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
# The variant with POSIX threads is the one whose standard library is whole.
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
# Programs that need no DLL of the compiler beside them.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
# Nothing of the machine that builds, but its programs.
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
# What packaging/windows-build has built for it.
if(DEFINED ENV{TRACEWELL_WINDOWS_LIBRARIES})
  list(PREPEND CMAKE_FIND_ROOT_PATH $ENV{TRACEWELL_WINDOWS_LIBRARIES})
endif()
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
