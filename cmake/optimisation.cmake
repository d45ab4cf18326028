# How the delivered library is made small and fast. Builds for debugging and sanitizers are left
# alone.
set(optimised_configs Release,RelWithDebInfo,MinSizeRel)

# What runs once in a parse or less often: size counts there, since a tool pays for every page of the
# library that its start touches.
set_source_files_properties(
    src/help/help_renderer.cpp
    src/help/help_topics.cpp
    src/interface/word_wrapped_text.cpp
    src/log/zarn_log.cpp
    ${zarn_modern_seldom_sources}
    src/options/action_modifiers.cpp
    src/parser/action_groups.cpp
    src/parser/action_rules.cpp
    src/parser/basic_parser.cpp
    src/parser/option_file_walk.cpp
    src/platform/load_file.cpp
    src/vocabulary/questions.cpp
    PROPERTIES COMPILE_OPTIONS $<$<CONFIG:${optimised_configs}>:-Os>
)

# The library is optimised as a whole: it is a fifth smaller so, and an argument costs some 7 % less.
# Its objects are compiled the ordinary way too, so that test programs can link them as they are. An
# archive does without: only the very compiler that wrote them can read such objects.
add_library(zarn_optimisation INTERFACE)
set(zarn_link_optimisation)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND BUILD_SHARED_LIBS)
    target_compile_options(zarn_optimisation INTERFACE
        $<$<CONFIG:${optimised_configs}>:-flto=auto>
        $<$<CONFIG:${optimised_configs}>:-ffat-lto-objects>
    )
    set(zarn_link_optimisation $<$<CONFIG:${optimised_configs}>:-flto=auto>)
endif()
