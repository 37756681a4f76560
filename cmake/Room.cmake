# vantrel_room(<name> [AT <path>] [SEES <room>...] SOURCES <file>...)
#
# One folder, one static library. A room's headers are reached as "<path>/Header.h", where the path
# is the name unless AT gives another, through an include folder that holds a link to this room
# only, so an include of a room that is not listed under SEES (or seen by one of those) does not
# compile.
function(vantrel_room name)
    cmake_parse_arguments(ROOM "" "AT" "SEES;SOURCES" ${ARGN})
    if(NOT ROOM_AT)
        set(ROOM_AT ${name})
    endif()
    set(doorway "${PROJECT_BINARY_DIR}/rooms/${name}")
    get_filename_component(above "${doorway}/${ROOM_AT}" DIRECTORY)
    file(MAKE_DIRECTORY "${above}")
    file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}" "${doorway}/${ROOM_AT}" SYMBOLIC)

    add_library(vantrel_${name} STATIC ${ROOM_SOURCES})
    target_include_directories(vantrel_${name} PUBLIC "${doorway}")
    target_link_libraries(vantrel_${name} PRIVATE vantrel_options)
    foreach(seen IN LISTS ROOM_SEES)
        target_link_libraries(vantrel_${name} PUBLIC vantrel_${seen})
    endforeach()
endfunction()
