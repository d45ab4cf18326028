# Asks the program TOOL what is wrong with its vocabulary, and fails when there is anything; see
# zarn_tool.
cmake_minimum_required(VERSION 3.25)

execute_process(COMMAND ${EMULATOR} ${TOOL} --zarn-answer check
    INPUT_FILE /dev/null
    OUTPUT_VARIABLE findings
    ERROR_VARIABLE said
    RESULT_VARIABLE code
    TIMEOUT 60
)
if(NOT code STREQUAL "0" OR NOT findings STREQUAL "")
    cmake_path(GET TOOL FILENAME name)
    string(REPLACE "\n" "\n " text "${findings}${said}")
    # Lines that begin with a blank are shown as they are.
    message(FATAL_ERROR
        " '${name} --zarn-answer check' finds mistakes (it ended with ${code}):\n ${text}"
    )
endif()
