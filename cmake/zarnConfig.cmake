# The installed package: nothing else has to be found first.
include(${CMAKE_CURRENT_LIST_DIR}/zarnTargets.cmake)
include(${CMAKE_CURRENT_LIST_DIR}/cmake/zarn_tool.cmake)
