# Windows on a i686 machine, cross-built with mingw-w64.
set(VANTREL_WINDOWS_MACHINE i686)
include("${CMAKE_CURRENT_LIST_DIR}/WindowsToolchain.cmake")
