# Runs the command in the locale of the environment, where "," separates decimals, and compares all that it writes.
# COMMAND, DIRECTORY: the program, and where its report goes.
file(REMOVE_RECURSE ${DIRECTORY})
file(MAKE_DIRECTORY ${DIRECTORY})

function(expect_equal actual expected)
    if(NOT actual STREQUAL expected)
        message(SEND_ERROR "expected:\n${expected}\nactual:\n${actual}")
    endif()
endfunction()

# By hand: G = 1.0 x 1.1, 2h / G above 2.0, qs1 = 0.8 G, ls = 2h.
execute_process(
    COMMAND ${COMMAND} parete --zona 2 --altitudine 200 --ce 1.1 --h 3,25 --relazione ${DIRECTORY}
    OUTPUT_VARIABLE output
    ERROR_VARIABLE error
    RESULT_VARIABLE status)
expect_equal("${status}" 0)
expect_equal("${error}" "Coltre: Creazione della relazione coltrecasipart.txt effettuata\n")
string(
    CONCAT expected
           "Calcolo                 accumulo contro una parete verticale\n"
           "Zona                    2 (Zona II)\n"
           "Altitudine                     200 m\n"
           "qsk                         1.1000 kN/m²\n"
           "qs1                         0.8800 kN/m²\n"
           "mu2                         2.0000\n"
           "qs2                         2.2000 kN/m²\n"
           "ls                            6.50 m\n"
           "Relazione               ${DIRECTORY}/coltrecasipart.txt\n")
expect_equal("${output}" "${expected}")
file(STRINGS ${DIRECTORY}/coltrecasipart.txt lines REGEX "^h |mu1|mu2|^ls")
string(REPLACE "\r" "" lines "${lines}")
set(expected "h (altezza della parete) = 3.25" "     mu1|   .8   |   .88  |" "     mu2|  2.    |  2.2   |"
             "ls (lunghezza di accumulo) = 6.5")
expect_equal("${lines}" "${expected}")

# In a batch too, and one value only is read by the locale.
file(WRITE ${DIRECTORY}/richieste
     "{\"calcolo\": \"parete\", \"zona\": 2, \"altitudine\": \"200,9\", \"ce\": \"1,5\", \"h\": \"3,25\"}\n")
execute_process(COMMAND ${COMMAND} lotto ${DIRECTORY}/richieste OUTPUT_VARIABLE output)
string(CONCAT expected "{\"calcolo\": \"parete\", \"altitudine\": 200, \"zona\": 2, \"qsk\": 1, \"mu\": {}, "
       "\"risultati\": {\"qs1\": 0.8, \"mu2\": 2, \"qs2\": 2, \"ls\": 6.5}, "
       "\"letture\": [\"altitudine «200,9»: letto come 200\", \"ce «1,5»: letto come 1\"], \"messaggi\": [], \"errore\": null}\n")
expect_equal("${output}" "${expected}")
