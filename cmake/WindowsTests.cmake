# How tests are built for Windows and run under Wine.

include(GoogleTestSource)

# Wine shows this machine's files on a drive of its own.
set(VANTREL_TEST_DRIVE "Z:")
set(CMAKE_CROSSCOMPILING_EMULATOR "${PROJECT_SOURCE_DIR}/scripts/wine.sh")

# vantrel_window_tests(<program>)
#
# The cases in two parts, which may run at once: each has a display and a Wine of its own, since only one window of either
# can have the keyboard. There is no window manager; see scripts/wine.sh.
set(VANTREL_CACHE "$ENV{XDG_CACHE_HOME}")
if(NOT VANTREL_CACHE)
    set(VANTREL_CACHE "$ENV{HOME}/.cache")
endif()
function(vantrel_window_tests program)
    foreach(part 0 1)
        add_test(NAME ${program}.${part}
            COMMAND "${PROJECT_SOURCE_DIR}/scripts/virtual-display.sh" "${PROJECT_SOURCE_DIR}/scripts/wine.sh"
                "$<TARGET_FILE:${program}>" --gtest_brief=1)
        set_tests_properties(${program}.${part} PROPERTIES LABELS gui TIMEOUT ${TESTS_TIMEOUT} ENVIRONMENT
            "VANTREL_MANAGER=none;VANTREL_WINE=${VANTREL_CACHE}/vantrel/wine-${part};GTEST_TOTAL_SHARDS=2;GTEST_SHARD_INDEX=${part}")
    endforeach()
endfunction()
