# What an optimised library carries against misuse of its memory. Sanitizers watch the same things
# better, and _FORTIFY_SOURCE would hide calls from them.
add_library(zarn_hardening INTERFACE)
# Where the processor can watch calls and jumps.
include(CheckCXXCompilerFlag)
check_cxx_compiler_flag(-fcf-protection has_control_flow_protection)
set(optimised $<CONFIG:Release,RelWithDebInfo,MinSizeRel>)
# No path of the machine that built it, in messages or debug information. The last that fits counts: a
# build inside of the source tree is named as a part of it.
set(without_paths
    "$<${optimised}:-ffile-prefix-map=${PROJECT_BINARY_DIR}=build>"
    "$<${optimised}:-ffile-prefix-map=${PROJECT_SOURCE_DIR}/=>"
)
target_compile_options(zarn_hardening INTERFACE
    $<${optimised}:-fstack-protector-strong>
    $<${optimised}:-fstack-clash-protection>
    $<$<AND:${optimised},${has_control_flow_protection}>:-fcf-protection>
    ${without_paths}
)
if(NOT CMAKE_CXX_FLAGS MATCHES "-fsanitize")
    target_compile_options(zarn_hardening INTERFACE
        $<${optimised}:-U_FORTIFY_SOURCE>
        $<${optimised}:-D_FORTIFY_SOURCE=3>  # 2 sees no copy into allocated memory
    )
    # Sanitizers leave their own symbols undefined until the program is linked.
    set(no_undefined LINKER:--no-undefined)
endif()
set(zarn_link_hardening
    ${without_paths}  # optimising as a whole compiles once more
    LINKER:-z,relro
    LINKER:-z,now
    LINKER:-z,noexecstack
    ${no_undefined}
)
