# A compiler cache makes the second build after a branch switch nearly free; it is optional.
find_program(VANTREL_CCACHE ccache)
mark_as_advanced(VANTREL_CCACHE)
if(VANTREL_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${VANTREL_CCACHE}")
endif()
