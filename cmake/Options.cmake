# What every target of ours is compiled and linked with, as one interface target.
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
# The simulator is a shared library made of the same static rooms.
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

add_library(vantrel_options INTERFACE)
target_compile_features(vantrel_options INTERFACE cxx_std_20)
target_compile_options(vantrel_options INTERFACE -Wall -Wextra -Wconversion -Wshadow -Wnon-virtual-dtor)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12 warns of overlapping copies inside std::string's own operator+ (its bug 105651).
    target_compile_options(vantrel_options INTERFACE -Wno-restrict)
endif()
if(UNIX AND CMAKE_SIZEOF_VOID_P EQUAL 4)
    # Sizes above 2 GB and times after 2038 fit as they do in 64 bits.
    add_compile_definitions(_FILE_OFFSET_BITS=64 _TIME_BITS=64)
endif()
if(UNIX)
    # A program loads at its start what it calls, and not what one of its rooms could.
    add_link_options(-Wl,--as-needed)
endif()
if(VANTREL_SANITIZE)
    target_compile_options(vantrel_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(vantrel_options INTERFACE -fsanitize=address,undefined)
endif()
if(VANTREL_FUZZ)
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        message(FATAL_ERROR "Fuzz targets need clang++: cmake --preset fuzz")
    endif()
    target_compile_options(vantrel_options INTERFACE
        -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all)
    target_link_options(vantrel_options INTERFACE -fsanitize=address,undefined)
    # An index past a view's end is found even where the memory behind it is valid.
    target_compile_definitions(vantrel_options INTERFACE _GLIBCXX_ASSERTIONS)
endif()
