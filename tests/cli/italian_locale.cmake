# Runs the command in the locale of the environment, where "," separates decimals, and in one that
# the system does not have: all that it writes is the same. COMMAND, DIRECTORY: the program, and where its report goes.
function(run name locale h)
    set(report ${DIRECTORY}/${name})
    file(REMOVE_RECURSE ${report})
    file(MAKE_DIRECTORY ${report})
    file(WRITE ${report}/requests
         "{\"calcolo\": \"parete\", \"zona\": 2, \"altitudine\": \"200,9\", \"ce\": \"1,5\", \"h\": \"${h}\"}\n")
    set(calculation parete --zona 2 --altitudine 200 --ce 1.1 --ct 1,5 --h ${h} --relazione .)
    foreach(arguments IN ITEMS "${calculation}" "lotto;requests")
        execute_process(COMMAND ${CMAKE_COMMAND} -E env ${locale} ${COMMAND} ${arguments} WORKING_DIRECTORY ${report}
                        OUTPUT_VARIABLE output ERROR_VARIABLE error COMMAND_ERROR_IS_FATAL ANY)
        string(APPEND written "${output}${error}")
    endforeach()
    file(READ ${report}/coltrecasipart.txt lines)
    set(${name} "${written}${lines}" PARENT_SCOPE)
endfunction()

run(plain LC_ALL=no_SUCH.locale 3.25)
run(local LC_ALL=$ENV{LC_ALL} 3,25)
if(NOT local STREQUAL plain)
    message(SEND_ERROR "expected:\n${plain}\nactual:\n${local}")
endif()
# One value only is read by the locale.
foreach(expected IN ITEMS "altitudine «200,9»: letto come 200\"" "ce «1,5»: letto come 1\"" "ct «1,5»: letto come 1\n" "ls                            6.50 m")
    string(FIND "${local}" "${expected}" found)
    if(found EQUAL -1)
        message(SEND_ERROR "no ${expected} in:\n${local}")
    endif()
endforeach()
