# Lays out the trial part of a program's folder, at install time.
#
# Everything belongs to the operator once it is there: a settings file, the robot list, the set-up
# and each controller's folder are put down only where they are missing, so that a job deleted on a
# controller stays deleted.

get_filename_component(prefix "${CMAKE_INSTALL_PREFIX}" ABSOLUTE)
set(folder "$ENV{DESTDIR}${prefix}")

function(copy_missing from name)
    if(EXISTS "${folder}/${name}")
        message(STATUS "Kept: ${folder}/${name}")
        return()
    endif()
    get_filename_component(destination "${folder}/${name}" DIRECTORY)
    file(COPY "${from}/${name}" DESTINATION "${destination}")
endfunction()

# The PC folder of the first start counts from the program's folder, wherever that is carried.
function(write_settings)
    if(EXISTS "${folder}/Vantrel.ini")
        message(STATUS "Kept: ${folder}/Vantrel.ini")
        return()
    endif()
    file(WRITE "${folder}/Vantrel.ini"
        "[Vantrel]\r\nPath=jobs\r\nTransMode=16\r\n"
        "Window=600,600,12600,8400,1650,800,2400\r\n"
        "[PCType]\r\nDispType=3\r\n[CtrlType]\r\nDispType=2\r\n"
        "[Language Info]\r\nLanguage=English\r\nLangSelect=0\r\n")
endfunction()

copy_missing("${TRIAL_DATA}" simulator.ini)
copy_missing("${TRIAL_DATA}/samples" robot.ini)
file(GLOB controllers RELATIVE "${TRIAL_DATA}/samples" "${TRIAL_DATA}/samples/controllers/*")
foreach(controller IN LISTS controllers)
    copy_missing("${TRIAL_DATA}/samples" "${controller}")
endforeach()
copy_missing("${TRIAL_DATA}/samples/pc" jobs)
write_settings()
