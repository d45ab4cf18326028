# Compares the kept description BASELINE with ANSWER, what the tool says now, by PROGRAM, which is
# zarn-vocabulary. Fails when a command line that was right would not be read as before; see
# zarn_tool.
cmake_minimum_required(VERSION 3.25)

if(EXISTS ${BASELINE})
    execute_process(COMMAND ${EMULATOR} ${PROGRAM} --diff ${BASELINE} ${ANSWER}
        INPUT_FILE /dev/null
        OUTPUT_VARIABLE changes
        ERROR_VARIABLE said
        RESULT_VARIABLE code
        TIMEOUT 60
    )
    string(REPLACE "\n" "\n " text "${changes}${said}")
else()
    set(code 3)
    set(text "There is no file ${BASELINE}.\n ")
endif()
if(NOT code STREQUAL "0")
    # Lines that begin with a blank are shown as they are.
    message(FATAL_ERROR
        " ${text}\n To accept this, keep what the tool takes now:\n"
        " cmake -E copy '${ANSWER}' '${BASELINE}'"
    )
endif()
message("${changes}")
