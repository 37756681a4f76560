# How tests are built for Windows and run under Wine.

include(GoogleTestSource)

# Wine shows this machine's files on a drive of its own.
set(VANTREL_TEST_DRIVE "Z:")
set(CMAKE_CROSSCOMPILING_EMULATOR "${PROJECT_SOURCE_DIR}/scripts/wine.sh")
