# How tests are built for Windows and run under Wine.

# The distribution has the test library for this machine only, but its source too.
set(INSTALL_GTEST OFF)
set(gtest_force_shared_crt ON)
add_subdirectory(/usr/src/googletest "${PROJECT_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL)
foreach(library gtest gmock gmock_main)
    if(NOT TARGET GTest::${library})
        add_library(GTest::${library} ALIAS ${library})
    endif()
endforeach()

# Wine shows this machine's files on a drive of its own.
set(VANTREL_TEST_DRIVE "Z:")
set(CMAKE_CROSSCOMPILING_EMULATOR "${PROJECT_SOURCE_DIR}/scripts/wine.sh")
