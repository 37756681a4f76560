# Read by CPack for each kind of package: its name and what it holds, each piece as build folder,
# project, component and where it goes.
function(vantrel_content) # <component> <folder> [<component> <folder>]...
    set(content "")
    while(ARGN)
        list(POP_FRONT ARGN component folder)
        list(APPEND content "${CPACK_VANTREL_BUILD}" Vantrel ${component} "${folder}")
    endwhile()
    set(CPACK_INSTALL_CMAKE_PROJECTS "${content}" PARENT_SCOPE)
endfunction()

if(CPACK_GENERATOR STREQUAL "DEB")
    set(CPACK_PACKAGING_INSTALL_PREFIX /opt/vantrel/Vantrel)
    vantrel_content(ALL / desktop /)
    set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
    set(CPACK_DEBIAN_PACKAGE_NAME vantrel)
    set(CPACK_DEBIAN_PACKAGE_MAINTAINER "The Vantrel maintainers <vantrel@localhost>")
    set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
    set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-utils, librsvg2-common, fonts-vlgothic")
    set(CPACK_DEBIAN_PACKAGE_SECTION utils)
    set(CPACK_PACKAGE_DESCRIPTION_SUMMARY
        "moves job and data files between a PC and a robot controller")
    set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Vantrel shows the folders of the PC on the left and the files of an
industrial-robot controller on the right. It copies, moves and deletes files
in both directions and asks before it replaces anything. A simulator with
sample controllers is included. Japanese and English.")
else()
    # The program alone, and beside it a folder to try it in with the simulator. The manuals lie
    # where both look for them. Nothing is in its place yet, so that an archive can be unpacked over
    # an older one.
    vantrel_content(program /Vantrel license /Vantrel program /Trial trial /Trial)
    if(CPACK_GENERATOR STREQUAL "ZIP")
        set(CPACK_PACKAGE_FILE_NAME "Vantrel-win${CPACK_VANTREL_BITS}")
    else()
        execute_process(COMMAND dpkg --print-architecture
            OUTPUT_VARIABLE architecture OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
        set(CPACK_PACKAGE_FILE_NAME "Vantrel-linux-${architecture}")
    endif()
endif()
