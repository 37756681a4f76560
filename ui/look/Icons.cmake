# vantrel_embed_icons(<target>)
#
# Turns every data/icons/*.svg into one constant of a generated source that `target` compiles, so
# that the program needs no icon files beside it. A new or changed drawing rebuilds that source.
set(VANTREL_EMBED_ICONS_SCRIPT "${CMAKE_CURRENT_LIST_DIR}/EmbedIcons.cmake")

function(vantrel_embed_icons target)
    set(generated "${CMAKE_CURRENT_BINARY_DIR}/IconDrawings.cpp")
    file(GLOB drawings CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/data/icons/*.svg")
    list(JOIN drawings "|" names)
    add_custom_command(OUTPUT "${generated}"
        COMMAND "${CMAKE_COMMAND}" "-DDRAWINGS=${names}" "-DOUTPUT=${generated}"
                -P "${VANTREL_EMBED_ICONS_SCRIPT}"
        DEPENDS ${drawings} "${VANTREL_EMBED_ICONS_SCRIPT}"
        COMMENT "Embedding the icons"
        VERBATIM)
    target_sources(${target} PRIVATE "${generated}")
endfunction()
