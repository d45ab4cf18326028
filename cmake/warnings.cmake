# Warnings for everything that is built here; the presets make them errors.
add_library(zarn_warnings INTERFACE)
target_compile_options(zarn_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual
)
