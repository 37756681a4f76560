# What a Windows build needs besides its compilers: the system's headers in their Unicode form, a
# program that is one file, and the cross-built toolkit.
add_compile_definitions(UNICODE _UNICODE NOMINMAX _WIN32_WINNT=0x0601)
add_compile_options(-ffunction-sections -fdata-sections)
if(CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # With optimisation GCC 12 finds faults inside std::string's own assignments (its bug 105329).
    add_compile_options(-Wno-array-bounds -Wno-stringop-overflow)
endif()
add_link_options(-static -Wl,--gc-sections)
string(APPEND CMAKE_EXE_LINKER_FLAGS_RELEASE " -s")
string(APPEND CMAKE_SHARED_LINKER_FLAGS_RELEASE " -s")

# Built by the script when it is not there yet, else found in its cache.
if(NOT wxWidgets_CONFIG_EXECUTABLE)
    execute_process(
        COMMAND "${PROJECT_SOURCE_DIR}/scripts/windows-toolkit.sh" ${CMAKE_SYSTEM_PROCESSOR}
        OUTPUT_VARIABLE toolkit OUTPUT_STRIP_TRAILING_WHITESPACE
        COMMAND_ERROR_IS_FATAL ANY)
    set(wxWidgets_CONFIG_EXECUTABLE "${toolkit}/bin/wx-config" CACHE FILEPATH
        "The configuration program of the cross-built toolkit")
endif()
get_filename_component(toolkit "${wxWidgets_CONFIG_EXECUTABLE}/../.." ABSOLUTE)
list(APPEND CMAKE_FIND_ROOT_PATH "${toolkit}")
