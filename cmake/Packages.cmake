# What is delivered, packed by CPack: an archive for each system, and a .deb. scripts/pack.sh makes
# them, and the installer for Windows from its archive's content.
set(CPACK_GENERATOR TGZ DEB)
if(WIN32)
    set(CPACK_GENERATOR ZIP)
    math(EXPR CPACK_VANTREL_BITS "8 * ${CMAKE_SIZEOF_VOID_P}")
else()
    set(CPACK_STRIP_FILES ON) # for Windows the linker does it
    add_subdirectory(packaging/linux)
endif()
# In an archive only; the .deb has it where Debian wants it.
install(FILES LICENSE RENAME LICENSE.txt DESTINATION . COMPONENT license EXCLUDE_FROM_ALL)

# What differs between the kinds of packages is read while each of them is made.
set(CPACK_PROJECT_CONFIG_FILE "${PROJECT_SOURCE_DIR}/packaging/Kinds.cmake")
set(CPACK_VANTREL_BUILD "${PROJECT_BINARY_DIR}")
include(CPack)
