# What an optimised library carries against misuse of its memory. Sanitizers watch the same things
# better, and _FORTIFY_SOURCE would hide calls from them.
add_library(zarn_hardening INTERFACE)
set(optimised $<CONFIG:Release,RelWithDebInfo,MinSizeRel>)
target_compile_options(zarn_hardening INTERFACE
    $<${optimised}:-fstack-protector-strong>
    # No path of the machine that built it, in messages or debug information.
    $<${optimised}:-ffile-prefix-map=${PROJECT_SOURCE_DIR}/=>
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
    LINKER:-z,relro
    LINKER:-z,now
    LINKER:-z,noexecstack
    ${no_undefined}
)
