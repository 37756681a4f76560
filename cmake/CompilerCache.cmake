# A compiler cache makes the second build after a branch switch nearly free; it is optional. Paths count from the
# checkout, so that one clone finds what another has compiled, and the tests' precompiled headers are cached too: for
# those the cache must not look at macros and times inside them.
find_program(VANTREL_CCACHE ccache)
mark_as_advanced(VANTREL_CCACHE)
if(VANTREL_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env
        "CCACHE_BASEDIR=${PROJECT_SOURCE_DIR}" CCACHE_NOHASHDIR=1 CCACHE_SLOPPINESS=pch_defines,time_macros
        "${VANTREL_CCACHE}")
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        add_compile_options(-fpch-preprocess)
    endif()
endif()
