# vantrel_windows_resources(<target>)
#
# Gives the program its manifest, its version as the system shows it, its icon, and the toolkit's
# own cursors. The icon is drawn from the same drawing as everywhere else.
find_program(VANTREL_RSVG_CONVERT rsvg-convert REQUIRED)
find_program(VANTREL_ICOTOOL icotool REQUIRED)
mark_as_advanced(VANTREL_RSVG_CONVERT VANTREL_ICOTOOL)
enable_language(RC)

set(VANTREL_ICON_SIZES 16 20 24 32 48 64 128 256)

function(vantrel_windows_icon drawing icon)
    set(pictures "")
    foreach(size IN LISTS VANTREL_ICON_SIZES)
        set(picture "${CMAKE_CURRENT_BINARY_DIR}/icon-${size}.png")
        add_custom_command(OUTPUT "${picture}"
            COMMAND "${VANTREL_RSVG_CONVERT}" -w ${size} -h ${size} -o "${picture}" "${drawing}"
            DEPENDS "${drawing}"
            VERBATIM)
        list(APPEND pictures "${picture}")
    endforeach()
    # The large one goes in as it is; the system understands that for this size only.
    list(GET pictures -1 large)
    set(small ${pictures})
    list(REMOVE_ITEM small "${large}")
    add_custom_command(OUTPUT "${icon}"
        COMMAND "${VANTREL_ICOTOOL}" --create -o "${icon}" ${small} "--raw=${large}"
        DEPENDS ${pictures}
        COMMENT "Drawing the program's icon"
        VERBATIM)
endfunction()

function(vantrel_windows_resources target)
    set(sources "${PROJECT_SOURCE_DIR}/packaging/windows")
    set(VANTREL_ICON "${CMAKE_CURRENT_BINARY_DIR}/Vantrel.ico")
    set(VANTREL_MANIFEST "${CMAKE_CURRENT_BINARY_DIR}/Vantrel.manifest")
    set(resources "${CMAKE_CURRENT_BINARY_DIR}/Vantrel.rc")
    vantrel_windows_icon("${PROJECT_SOURCE_DIR}/data/icons/vantrel.svg" "${VANTREL_ICON}")
    configure_file("${sources}/Vantrel.manifest.in" "${VANTREL_MANIFEST}" @ONLY)
    configure_file("${sources}/Vantrel.rc.in" "${resources}" @ONLY)
    set_source_files_properties("${resources}" PROPERTIES
        OBJECT_DEPENDS "${VANTREL_ICON};${VANTREL_MANIFEST}")
    target_sources(${target} PRIVATE "${resources}")
    set_target_properties(${target} PROPERTIES WIN32_EXECUTABLE ON)
endfunction()
