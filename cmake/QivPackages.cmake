# Debian packages, one for each install component. Made from a tree that is configured with the install prefix /usr,
# as the presets package and package-x86 are; CPack finds the dependencies with dpkg-shlibdeps.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME qiv)
set(CPACK_PACKAGE_CONTACT "The Qiv developers <qiv@localhost>")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
set(CPACK_COMPONENTS_ALL runtime dev)
if(TARGET tarvonel-json)
    list(APPEND CPACK_COMPONENTS_ALL tool)
endif()

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/lib)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS OFF)
if(CMAKE_LIBRARY_ARCHITECTURE STREQUAL "i386-linux-gnu")
    # dpkg knows only the architecture of the machine, which builds this one as a second.
    set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE i386)
endif()

set(runtime_package libqiv${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime_package})
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "Libraries of the media-IO model and its JSON converters")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_GENERATE_SHLIBS ON)

set(CPACK_DEBIAN_DEV_PACKAGE_NAME libqiv-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "${runtime_package} (= ${PROJECT_VERSION}), libjsoncpp-dev")
set(CPACK_COMPONENT_DEV_DESCRIPTION "Headers, CMake and pkg-config files and the JSON schema of the media-IO model")

set(CPACK_DEBIAN_TOOL_PACKAGE_NAME tarvonel-json)
set(CPACK_DEBIAN_TOOL_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_TOOL_PACKAGE_DEPENDS "${runtime_package} (= ${PROJECT_VERSION})")
set(CPACK_COMPONENT_TOOL_DESCRIPTION "Command-line tool for the JSON documents of the media-IO model")

include(CPack)
