# Installs the trial twice, with an operator's changes in between.
set(folder "${WORK}/A folder")
file(REMOVE_RECURSE "${WORK}")

function(install_trial)
    foreach(component IN ITEMS trial in-place)
        execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --component ${component}
            --prefix "${folder}" OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    endforeach()
endfunction()

function(expect_text name expected)
    file(READ "${folder}/${name}" content)
    if(NOT content MATCHES "${expected}")
        message(FATAL_ERROR "${name} does not hold '${expected}' but:\n${content}")
    endif()
endfunction()

function(expect_there)
    foreach(name IN LISTS ARGN)
        if(NOT EXISTS "${folder}/${name}")
            message(FATAL_ERROR "missing: ${name}")
        endif()
    endforeach()
endfunction()

install_trial()
expect_there(${LIBRARY_NAME} simulator.ini robot.ini Vantrel.ini jobs/LocalJob.lst
    jobs/handling/PICK13.JBI controllers/line1-weld/MAIN.JBI controllers/bench-seal/variables.txt)
expect_text(Vantrel.ini "Path=jobs[\r\n]")
expect_text(Vantrel.ini "TransMode=16")

foreach(name Vantrel.ini robot.ini simulator.ini jobs/MEMO.JBI controllers/line1-weld/ROOF.JBI)
    file(WRITE "${folder}/${name}" "changed")
endforeach()
file(REMOVE "${folder}/controllers/line1-weld/MAIN.JBI" "${folder}/jobs/TRUNK.JBI")
file(REMOVE_RECURSE "${folder}/controllers/line2-handling")
file(WRITE "${folder}/${LIBRARY_NAME}" "an older one, or the maker's")

install_trial()
foreach(name Vantrel.ini robot.ini simulator.ini jobs/MEMO.JBI controllers/line1-weld/ROOF.JBI)
    expect_text("${name}" "^changed$")
endforeach()
foreach(name controllers/line1-weld/MAIN.JBI jobs/TRUNK.JBI)
    if(EXISTS "${folder}/${name}")
        message(FATAL_ERROR "came back: ${name}")
    endif()
endforeach()
expect_there(controllers/line2-handling/PICK01.JBI)
# Which of the two it is, is looked at by the program.
expect_text("${LIBRARY_NAME}" "^an older one")
expect_there(.installed/${LIBRARY_NAME}.new)
