# What the two Windows targets have in common; VANTREL_WINDOWS_MACHINE is x86_64 or i686. The
# compilers are those with POSIX threads, since the others lack the standard library's threads.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR ${VANTREL_WINDOWS_MACHINE})
set(windows_host ${VANTREL_WINDOWS_MACHINE}-w64-mingw32)

set(CMAKE_C_COMPILER ${windows_host}-gcc-posix)
set(CMAKE_CXX_COMPILER ${windows_host}-g++-posix)
set(CMAKE_RC_COMPILER ${windows_host}-windres)

# Headers and libraries of this machine are none of the target's.
set(CMAKE_FIND_ROOT_PATH /usr/${windows_host})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
