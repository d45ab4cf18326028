# Asks the program TOOL for its description, and keeps it in the file ANSWER; see zarn_tool. It has
# to say VERSION and SUMMARY, where these are not empty. PROGRAM then makes the PAGES, whose names say
# what they are.
cmake_minimum_required(VERSION 3.25)

# Lines that begin with a blank are shown as they are.
function(refuse text)
    cmake_path(GET TOOL FILENAME name)
    string(REPLACE "\n" "\n " text "${name} ${text}")
    message(FATAL_ERROR " ${text}")
endfunction()

set(unread ${ANSWER}.unread)
cmake_path(GET ANSWER PARENT_PATH directory)
file(MAKE_DIRECTORY ${directory})
execute_process(COMMAND ${EMULATOR} ${TOOL} --zarn-answer describe
    INPUT_FILE /dev/null
    OUTPUT_FILE ${unread}
    ERROR_VARIABLE said
    RESULT_VARIABLE code
    TIMEOUT 60
)
file(READ ${unread} description)
string(JSON format ERROR_VARIABLE problem GET "${description}" format)
if(NOT code STREQUAL "0" OR NOT format MATCHES "^[0-9]+$")
    set(advice "Call zarn::Parser::run, or zarn::answerQuestion in front of the parse.")
    refuse("does not answer '--zarn-answer describe' (it ended with ${code}).\n${said}${advice}")
endif()

foreach(key VERSION SUMMARY)
    string(TOLOWER ${key} name)
    string(JSON value ERROR_VARIABLE problem GET "${description}" ${name})
    if(problem)
        set(value)
    endif()
    if(NOT "${${key}}" STREQUAL "" AND NOT "${value}" STREQUAL "${${key}}")
        refuse("has the ${name} '${value}', where zarn_tool was told '${${key}}'.")
    endif()
endforeach()
file(RENAME ${unread} ${ANSWER})

foreach(page IN LISTS PAGES)
    set(kind --man)
    if(page MATCHES "\\.md$")
        set(kind --markdown)
    endif()
    execute_process(COMMAND ${EMULATOR} ${PROGRAM} ${kind} ${ANSWER} --output=${page}
        INPUT_FILE /dev/null
        ERROR_VARIABLE said
        RESULT_VARIABLE code
        TIMEOUT 60
    )
    if(NOT code STREQUAL "0")
        refuse("has no page: zarn-vocabulary ended with ${code}.\n${said}")
    endif()
endforeach()
