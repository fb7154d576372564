# Runs the Windows program as its users do, from a directory with accents, and looks at the bytes that it writes.
# COMMAND, DIRECTORY: how it is called, and where its files go.
file(REMOVE_RECURSE ${DIRECTORY})
set(place ${DIRECTORY}/Forlì\ €\ Łódź)
file(MAKE_DIRECTORY ${place}/città)
string(ASCII 26 end_of_text)  # where the system reads texts, that is the end of one
set(wall "{\"calcolo\": \"parete\", \"zona\": 2, \"altitudine\": 200, \"h\": \"3,25\", \"relazione\": \"città\"}\n")
file(WRITE ${place}/richieste.jsonl "${end_of_text}\n${wall}")

function(run expected)
    execute_process(COMMAND ${COMMAND} ${ARGN} WORKING_DIRECTORY ${place} INPUT_FILE ${place}/richieste.jsonl
                    OUTPUT_VARIABLE output ERROR_VARIABLE output)
    string(FIND "${output}" "${expected}" found)
    if(found EQUAL -1 OR output MATCHES "\r")
        message(SEND_ERROR "${ARGN}: no ${expected}, or a carriage return, in:\n${output}")
    endif()
endfunction()

foreach(requests IN ITEMS - richieste.jsonl)
    file(REMOVE ${place}/città/coltrecasipart.txt)
    run([["ls": 6.5}]] lotto ${requests})
    if(NOT EXISTS ${place}/città/coltrecasipart.txt)
        message(SEND_ERROR "no report")
    endif()
endforeach()
run([[Scritto il file città\altitudini.txt]] altitudini scrivi città)
run([[Riparato il file ..\Forlì € Łódź\città\altitudini.txt]] altitudini ripara "../Forlì € Łódź/città")
run("impossibile leggere il file «/nessuna/richiesta»" lotto /nessuna/richiesta)
