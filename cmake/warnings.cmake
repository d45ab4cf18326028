# Warnings for everything that is built here; the presets make them errors.
add_library(zarn_warnings INTERFACE)
target_compile_options(zarn_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual
)
# What the sanitizers put in between makes g++ see uninitialised variables inside <functional>.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_FLAGS MATCHES "-fsanitize")
    target_compile_options(zarn_warnings INTERFACE -Wno-maybe-uninitialized)
endif()
