# Fails when a .cpp file under src/, programs/ or tests/ belongs to no target: it would never be
# compiled, and a test in it never run. A public header that is not listed would not be installed. The
# tools in tests/package/ and tests/shells/, and without PROGRAMS the programs, are built by some
# builds alone.
file(STRINGS ${LISTED} listed)
file(GLOB_RECURSE found
    ${ROOT}/src/*.cpp ${ROOT}/programs/*.cpp ${ROOT}/tests/*.cpp ${ROOT}/include/*.h
)
list(FILTER found EXCLUDE REGEX "/tests/(package|shells)/")
if(NOT PROGRAMS)
    list(FILTER found EXCLUDE REGEX "^${ROOT}/(tests/)?programs/")
endif()
list(REMOVE_ITEM found ${listed})
if(found)
    list(JOIN found "\n  " found)
    message(FATAL_ERROR "In no list of CMakeLists.txt or tests/CMakeLists.txt:\n  ${found}")
endif()
