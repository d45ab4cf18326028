# The Debian packages: one for tools to run, named after the soname, and one to build them.
set(CPACK_PACKAGE_CONTACT "zarn maintainers <maintainers@zarn.example>" CACHE STRING
    "Who answers for the packages"
)
set(CPACK_GENERATOR DEB)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL runtime development)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

get_target_property(soversion zarn SOVERSION)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libzarn${soversion})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
# What is packaged with tools that link the library learns from this what to depend on.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "The shared library, which the tools need to run.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libzarn-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "libzarn${soversion} (= ${PROJECT_VERSION})")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "Headers, CMake package, pkg-config file, documents, and zarn-vocabulary.")

include(CPack)
