# Headers, library, CMake package and pkg-config file; all of it may be moved afterwards.
include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

# A directory inside the prefix moves with it, also when it was given as an absolute one.
foreach(kind LIBDIR INCLUDEDIR)
    set(directory ${CMAKE_INSTALL_${kind}})
    cmake_path(IS_PREFIX CMAKE_INSTALL_PREFIX "${directory}" NORMALIZE inside)
    if(inside)
        cmake_path(RELATIVE_PATH directory BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}")
    endif()
    string(TOLOWER ${kind} kind)
    set(${kind} ${directory})
endforeach()

install(TARGETS zarn EXPORT zarnTargets
    LIBRARY DESTINATION ${libdir} COMPONENT runtime NAMELINK_COMPONENT development
    ARCHIVE DESTINATION ${libdir} COMPONENT development
    FILE_SET HEADERS DESTINATION ${includedir} COMPONENT development
)

# zarn_tool.cmake finds the scripts' templates beside its directory, as in the sources.
set(package_dir ${libdir}/cmake/zarn)
install(EXPORT zarnTargets NAMESPACE zarn:: DESTINATION ${package_dir} COMPONENT development)
write_basic_package_version_file(zarnConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES cmake/zarnConfig.cmake ${PROJECT_BINARY_DIR}/zarnConfigVersion.cmake
    DESTINATION ${package_dir} COMPONENT development
)
install(FILES
    cmake/ask_tool.cmake cmake/check_tool.cmake cmake/compare_tool.cmake cmake/zarn_tool.cmake
    DESTINATION ${package_dir}/cmake COMPONENT development
)
install(DIRECTORY completion DESTINATION ${package_dir} COMPONENT development)

# pkg-config finds the prefix from the place of its file, so it needs the way back up. A directory
# outside the prefix stays as it is: appending an absolute one replaces what was there.
set(pkgconfig_dir ${CMAKE_INSTALL_PREFIX})
cmake_path(APPEND pkgconfig_dir ${libdir} pkgconfig)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX
    BASE_DIRECTORY ${pkgconfig_dir}
    OUTPUT_VARIABLE way_to_prefix
)
foreach(directory libdir includedir)
    set(pc_${directory} "\${prefix}")
    cmake_path(APPEND pc_${directory} ${${directory}})
    string(REPLACE " " "\\ " pc_${directory} "${pc_${directory}}")
endforeach()
configure_file(cmake/zarn.pc.in zarn.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/zarn.pc DESTINATION ${libdir}/pkgconfig COMPONENT development)

# The pages keep their places among each other, so that their links hold.
install(FILES README.md CHANGELOG.md CONTRIBUTING.md
    DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT development)
install(FILES benchmarks/RESULTS.md benchmarks/results.svg
    DESTINATION ${CMAKE_INSTALL_DOCDIR}/benchmarks COMPONENT development)
install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT development)
install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT development
    FILES_MATCHING PATTERN "*.md" PATTERN "*.schema.json" PATTERN "docs/samples/*"
    PATTERN docs/tools EXCLUDE
)
