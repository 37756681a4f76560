# How tests are built for Windows and run under Wine.

include(GoogleTestSource)

# Wine shows this machine's files on a drive of its own.
set(VANTREL_TEST_DRIVE "Z:")
set(VANTREL_TEST_STARTER "${PROJECT_SOURCE_DIR}/scripts/wine.sh")
set(CMAKE_CROSSCOMPILING_EMULATOR "${VANTREL_TEST_STARTER}")

# Each part of the window tests has a Wine of its own there.
set(VANTREL_CACHE "$ENV{XDG_CACHE_HOME}")
if(NOT VANTREL_CACHE)
    set(VANTREL_CACHE "$ENV{HOME}/.cache")
endif()
