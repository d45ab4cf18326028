# Tools that are asked while they are built: what they take, and completion in the shells.

# zarn_tool(<target> [VERSION <version>] [SUMMARY <summary>] [COMPONENT <component>] [NO_COMPLETION]
#     [NO_MAN] [MARKDOWN] [CHECK] [BASELINE <file>])
#
# Asks the executable, behind its link step, for its description, and fails the build when it does
# not answer: a script that completed its words would run it otherwise. Installs the description as
# share/zarn/TOOL.json and, without NO_COMPLETION, scripts for bash, zsh and fish; TOOL is the
# OUTPUT_NAME of the target, or its name. To be called in the directory that adds the executable.
#
# Where zarn-vocabulary was built with the library, pages are made of the description: for man,
# without NO_MAN, and in Markdown, with MARKDOWN.
#
# VERSION, SUMMARY  what the tool has to say of itself; the build fails when it says something else
# COMPONENT         of what is installed
# CHECK             adds the test TOOL.check: the tool finds no mistake in what it takes
# BASELINE          a description that was kept; adds the test TOOL.baseline: whoever used the tool by
#                   it still can. It needs zarn-vocabulary
function(zarn_tool target)
    cmake_parse_arguments(PARSE_ARGV 1 given "NO_COMPLETION;NO_MAN;MARKDOWN;CHECK"
        "VERSION;SUMMARY;COMPONENT;BASELINE" ""
    )
    if(NOT TARGET ${target})
        message(FATAL_ERROR "zarn_tool: there is no target '${target}'")
    endif()
    if(DEFINED given_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "zarn_tool: '${given_UNPARSED_ARGUMENTS}' is not known")
    endif()
    get_target_property(tool ${target} OUTPUT_NAME)
    if(NOT tool)
        set(tool ${target})
    endif()
    if(CMAKE_CROSSCOMPILING AND NOT CMAKE_CROSSCOMPILING_EMULATOR)
        message(WARNING "zarn_tool: '${tool}' cannot run here, so nothing is installed for it")
        return()
    endif()
    zarn_choose_pages()
    zarn_ask_tool()
    zarn_test_tool()
    if(NOT given_NO_COMPLETION)
        zarn_install_script(bash bash-completion/completions ${tool})
        zarn_install_script(zsh zsh/site-functions _${tool})
        zarn_install_script(fish fish/vendor_completions.d ${tool}.fish)
    endif()
endfunction()

# The steps of zarn_tool, which see its variables.
macro(zarn_choose_pages)
    set(made ${CMAKE_CURRENT_BINARY_DIR}/zarn_tool)
    set(pages)
    set(program)
    if(NOT given_NO_MAN)
        list(APPEND pages ${made}/${tool}.1)
    endif()
    if(given_MARKDOWN)
        list(APPEND pages ${made}/${tool}.md)
    endif()
    if(pages AND TARGET zarn::zarn-vocabulary)
        set(program $<TARGET_FILE:zarn::zarn-vocabulary>)
    elseif(pages)
        message(STATUS "zarn_tool: no pages about '${tool}', since there is no zarn-vocabulary")
        set(pages)
    endif()
    foreach(page IN LISTS pages)
        if(page MATCHES "\\.1$")
            zarn_install_file(${page} man/man1 ${tool}.1)
        else()
            zarn_install_file(${page} doc/${tool} ${tool}.md)
        endif()
    endforeach()
endmacro()

macro(zarn_ask_tool)
    set(answer ${CMAKE_CURRENT_BINARY_DIR}/zarn_tool/${tool}.json)
    add_custom_command(TARGET ${target} POST_BUILD
        COMMAND ${CMAKE_COMMAND} -D "TOOL=$<TARGET_FILE:${target}>" -D "ANSWER=${answer}"
            -D "EMULATOR=${CMAKE_CROSSCOMPILING_EMULATOR}"
            -D "VERSION=${given_VERSION}" -D "SUMMARY=${given_SUMMARY}"
            -D "PROGRAM=${program}" -D "PAGES=${pages}"
            -P ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/ask_tool.cmake
        BYPRODUCTS ${answer} ${pages}
        COMMENT "Asking ${tool} what it takes"
        VERBATIM
    )
    zarn_install_file(${answer} zarn ${tool}.json)
endmacro()

macro(zarn_test_tool)
    set(scripts ${CMAKE_CURRENT_FUNCTION_LIST_DIR})
    if(given_CHECK)
        add_test(NAME ${tool}.check
            COMMAND ${CMAKE_COMMAND} -D "TOOL=$<TARGET_FILE:${target}>"
                -D "EMULATOR=${CMAKE_CROSSCOMPILING_EMULATOR}" -P ${scripts}/check_tool.cmake
        )
    endif()
    if(DEFINED given_BASELINE AND TARGET zarn::zarn-vocabulary)
        cmake_path(ABSOLUTE_PATH given_BASELINE BASE_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR} NORMALIZE)
        add_test(NAME ${tool}.baseline
            COMMAND ${CMAKE_COMMAND} -D "PROGRAM=$<TARGET_FILE:zarn::zarn-vocabulary>"
                -D "EMULATOR=${CMAKE_CROSSCOMPILING_EMULATOR}"
                -D "BASELINE=${given_BASELINE}" -D "ANSWER=${answer}"
                -P ${scripts}/compare_tool.cmake
        )
    elseif(DEFINED given_BASELINE)
        message(WARNING
            "zarn_tool: '${tool}' is not compared with its baseline: there is no zarn-vocabulary"
        )
    endif()
endmacro()

macro(zarn_install_script shell directory name)
    set(template ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/../completion/tool.${shell}.in)
    set(script ${CMAKE_CURRENT_BINARY_DIR}/zarn_tool/${tool}.${shell})
    configure_file(${template} ${script} @ONLY)
    zarn_install_file(${script} ${directory} ${name})
endmacro()

macro(zarn_install_file file directory name)
    set(component)
    if(given_COMPONENT)
        set(component COMPONENT ${given_COMPONENT})
    endif()
    install(FILES ${file} DESTINATION share/${directory} RENAME ${name} ${component})
endmacro()
