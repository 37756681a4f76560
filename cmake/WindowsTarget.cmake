# What a Windows build needs besides its compilers: the system's headers in their Unicode form, a
# program that is one file, and the cross-built toolkit.
add_compile_definitions(UNICODE _UNICODE NOMINMAX _WIN32_WINNT=0x0601)
add_compile_options(-ffunction-sections -fdata-sections)
if(CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # With optimisation GCC 12 finds faults inside std::string's own assignments (its bug 105329).
    add_compile_options(-Wno-array-bounds -Wno-stringop-overflow)
endif()
# The oldest system that has all functions used here is Windows 7; older ones say so at the start.
add_link_options(-static -Wl,--gc-sections
    -Wl,--major-subsystem-version=6,--minor-subsystem-version=1)
string(APPEND CMAKE_EXE_LINKER_FLAGS_RELEASE " -s")
string(APPEND CMAKE_SHARED_LINKER_FLAGS_RELEASE " -s")

if(VANTREL_LINK_ONLY)
    return()
endif()
# Asked for at each configuration, since its cache may have been emptied or a newer one may be wanted
# than the build folder remembers. The script answers at once when the toolkit is there.
execute_process(
    COMMAND "${PROJECT_SOURCE_DIR}/scripts/windows-toolkit.sh" ${CMAKE_SYSTEM_PROCESSOR}
    OUTPUT_VARIABLE toolkit OUTPUT_STRIP_TRAILING_WHITESPACE
    COMMAND_ERROR_IS_FATAL ANY)
set(wxWidgets_CONFIG_EXECUTABLE "${toolkit}/bin/wx-config" CACHE FILEPATH
    "The configuration program of the cross-built toolkit" FORCE)
list(APPEND CMAKE_FIND_ROOT_PATH "${toolkit}")

# The same for the library of the history.
execute_process(
    COMMAND "${PROJECT_SOURCE_DIR}/scripts/windows-git.sh" ${CMAKE_SYSTEM_PROCESSOR}
    OUTPUT_VARIABLE git2_folder OUTPUT_STRIP_TRAILING_WHITESPACE
    COMMAND_ERROR_IS_FATAL ANY)
add_library(vantrel_git2 INTERFACE)
target_include_directories(vantrel_git2 SYSTEM INTERFACE "${git2_folder}/include")
target_link_directories(vantrel_git2 INTERFACE "${git2_folder}/lib")
target_link_libraries(vantrel_git2 INTERFACE git2 http_parser pcre2-posix pcre2-8 z ws2_32 secur32 crypt32 rpcrt4 ole32)
