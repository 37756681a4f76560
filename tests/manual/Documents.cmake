# Installs the built manuals, takes the text out of them and looks for every chapter in it.
cmake_minimum_required(VERSION 3.25)
find_program(PDFTOTEXT pdftotext REQUIRED)

# The program looks for them beside its own folder.
file(REMOVE_RECURSE "${WORK}")
execute_process(COMMAND ${CMAKE_COMMAND} -E env "DESTDIR=${WORK}"
    ${CMAKE_COMMAND} -D CMAKE_INSTALL_PREFIX=/opt/vantrel/program
        -D CMAKE_INSTALL_COMPONENT=program -P "${DOCUMENTS}/cmake_install.cmake"
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
set(installed "${WORK}/opt/vantrel/ZUROLINKDLL/Help")

foreach(name Zurolink_us Zurolink_jp)
    execute_process(COMMAND "${PDFTOTEXT}" -enc UTF-8 "${installed}/${name}.pdf" -
        OUTPUT_VARIABLE text RESULT_VARIABLE status)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "${name}.pdf is no document that can be read")
    endif()
    file(STRINGS "${TEXTS}/${name}.adoc" chapters REGEX "^== " ENCODING UTF-8)
    list(LENGTH chapters count)
    if(count LESS 10)
        message(FATAL_ERROR "${name}.adoc has only ${count} chapters")
    endif()
    # Blanks, line ends and the places where a line may break say nothing about the letters.
    string(ASCII 226 128 139 zero_width_space)
    string(ASCII 12 page_end)
    string(REGEX REPLACE "[ \n\r${page_end}]|${zero_width_space}" "" text "${text}")
    foreach(chapter IN LISTS chapters)
        string(REGEX REPLACE "^== | " "" title "${chapter}")
        string(FIND "${text}" "${title}" inContents)
        string(FIND "${text}" "${title}" asHeading REVERSE)
        if(inContents EQUAL asHeading)
            message(SEND_ERROR "${name}.pdf lacks the chapter: ${title}")
        endif()
    endforeach()
endforeach()
