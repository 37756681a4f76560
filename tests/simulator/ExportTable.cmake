# The dynamic symbol table of the stand-in: the functions of the interface, plain names, no more.
set(expected
    BscClose BscConnect BscDeleteJob BscDisConnect BscDownLoad BscFindFirst BscFindNext
    BscGetVarData BscOpen BscPutVarData BscSelectJob BscSetCom BscSetEther BscUpLoad
    ZurolinkSimulator)

execute_process(COMMAND "${NM}" -D --defined-only --format=posix "${LIBRARY}"
    OUTPUT_VARIABLE table COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "[^\n]+" rows "${table}")
set(exported "")
foreach(row IN LISTS rows)
    string(REGEX REPLACE " .*" "" name "${row}")
    list(APPEND exported "${name}")
endforeach()
list(SORT exported)
if(NOT exported STREQUAL expected)
    message(FATAL_ERROR "Exported: ${exported}")
endif()
