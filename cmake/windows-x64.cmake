# Windows on a x86_64 machine, cross-built with mingw-w64.
set(VANTREL_WINDOWS_MACHINE x86_64)
include("${CMAKE_CURRENT_LIST_DIR}/WindowsToolchain.cmake")
