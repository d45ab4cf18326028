# Headers, library, CMake package and pkg-config file; all of it may be moved afterwards.
include(CMakePackageConfigHelpers)

install(TARGETS zarn EXPORT zarnTargets)
install(DIRECTORY include/plinth2 include/zarn DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/zarn)
install(EXPORT zarnTargets NAMESPACE zarn:: DESTINATION ${package_dir})
configure_package_config_file(cmake/zarnConfig.cmake.in zarnConfig.cmake
    INSTALL_DESTINATION ${package_dir}
    NO_SET_AND_CHECK_MACRO
    NO_CHECK_REQUIRED_COMPONENTS_MACRO
)
write_basic_package_version_file(zarnConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/zarnConfig.cmake
    ${PROJECT_BINARY_DIR}/zarnConfigVersion.cmake
    DESTINATION ${package_dir}
)

# pkg-config finds the prefix from the place of the file, so it needs the way back up.
set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX
    BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX}/${pkgconfig_dir}
    OUTPUT_VARIABLE way_to_prefix
)
configure_file(cmake/zarn.pc.in zarn.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/zarn.pc DESTINATION ${pkgconfig_dir})
