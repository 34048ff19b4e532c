# How every library of the family, and every program beside them, is built and installed.

include(GenerateExportHeader)
include(CMakePackageConfigHelpers)

set(QIV_INCLUDE_ROOT ${PROJECT_SOURCE_DIR})
set(QIV_GENERATED_ROOT ${PROJECT_BINARY_DIR}/generated)

# Compiler settings of all targets of this project; never part of what a consumer inherits.
function(qiv_set_up_target target)
    target_compile_features(${target} PUBLIC cxx_std_17)
    set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
    if(QIV_WARNINGS_AS_ERRORS)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    if(QIV_HARDENED)
        target_compile_options(${target} PRIVATE -fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
        if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64|i[3-6]86)$")
            target_compile_options(${target} PRIVATE -fcf-protection)
        endif()
        target_link_options(${target} PRIVATE LINKER:-z,relro,-z,now)
    endif()
endfunction()

# qiv_add_library(<Name> SOURCES <file>... HEADERS <file>... [DEPENDS <library>...] [JSONCPP])
#
# Adds the shared library lib<Name>.so of the current folder, with hidden visibility and an export header
# <folder>/Export.h that defines <FOLDER_WITH_UNDERSCORES>_EXPORT. JSONCPP: its headers include jsoncpp's.
# HEADERS are the public ones, which are installed; headers in a Details folder are listed nowhere.
function(qiv_add_library name)
    cmake_parse_arguments(PARSE_ARGV 1 library "JSONCPP" "" "SOURCES;HEADERS;DEPENDS")
    file(RELATIVE_PATH folder ${QIV_INCLUDE_ROOT} ${CMAKE_CURRENT_SOURCE_DIR})
    string(REPLACE "/" "_" prefix ${folder})
    string(TOUPPER ${prefix} prefix)
    string(REGEX REPLACE "^Qiv\\." "" short_name ${name})

    add_library(${name} SHARED ${library_SOURCES})
    add_library(Qiv::${short_name} ALIAS ${name})
    qiv_set_up_target(${name})
    # A conversion passes through many small functions: calls across libraries go without a detour, which makes reading
    # some 5% faster, and those inside one may be inlined.
    target_compile_options(${name} PRIVATE -fno-plt -fno-semantic-interposition)
    set_target_properties(${name} PROPERTIES
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}
        EXPORT_NAME ${short_name}
        DEFINE_SYMBOL ${prefix}_IS_BUILT
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        VERIFY_INTERFACE_HEADER_SETS ON)
    target_link_options(${name} PRIVATE LINKER:--version-script=${PROJECT_SOURCE_DIR}/cmake/exports.map)
    set_property(TARGET ${name} APPEND PROPERTY LINK_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/exports.map)
    # A symbol that no listed dependency defines is found here rather than by the consumer's linker;
    # sanitizers leave their run-time library to the program.
    if(NOT CMAKE_CXX_FLAGS MATCHES "-fsanitize")
        target_link_options(${name} PRIVATE LINKER:-z,defs)
    endif()
    generate_export_header(${name}
        EXPORT_MACRO_NAME ${prefix}_EXPORT
        NO_EXPORT_MACRO_NAME ${prefix}_NO_EXPORT
        DEPRECATED_MACRO_NAME ${prefix}_DEPRECATED
        INCLUDE_GUARD_NAME ${prefix}_EXPORT_H
        EXPORT_FILE_NAME ${QIV_GENERATED_ROOT}/${folder}/Export.h)
    # Two sets, because the base folders of one may not lie within each other, as those of a build in the tree do.
    target_sources(${name} PUBLIC
        FILE_SET HEADERS BASE_DIRS ${QIV_INCLUDE_ROOT} FILES ${library_HEADERS}
        FILE_SET generated TYPE HEADERS BASE_DIRS ${QIV_GENERATED_ROOT}
        FILES ${QIV_GENERATED_ROOT}/${folder}/Export.h)

    set(requires "")
    foreach(dependency IN LISTS library_DEPENDS)
        target_link_libraries(${name} PUBLIC ${dependency})
        string(APPEND requires " ${dependency}")
    endforeach()
    if(library_JSONCPP)
        target_link_libraries(${name} PUBLIC JsonCpp::JsonCpp)
        string(APPEND requires " jsoncpp")
    endif()

    install(TARGETS ${name} EXPORT QivTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT dev
        FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT dev
        FILE_SET generated DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT dev)

    set_property(GLOBAL APPEND PROPERTY QIV_LIBRARIES ${name})

    set(QIV_PC_NAME ${name})
    set(QIV_PC_REQUIRES ${requires})
    file(RELATIVE_PATH QIV_PC_PREFIX /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
    string(REGEX REPLACE "/$" "" QIV_PC_PREFIX ${QIV_PC_PREFIX})
    configure_file(${PROJECT_SOURCE_DIR}/cmake/Qiv.pc.in ${PROJECT_BINARY_DIR}/pkgconfig/${name}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/pkgconfig/${name}.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT dev)
endfunction()

# Installs the find_package(Qiv) package; call once, after all libraries.
function(qiv_install_package)
    set(destination ${CMAKE_INSTALL_LIBDIR}/cmake/Qiv)
    configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/QivConfig.cmake.in
        ${PROJECT_BINARY_DIR}/QivConfig.cmake INSTALL_DESTINATION ${destination})
    write_basic_package_version_file(${PROJECT_BINARY_DIR}/QivConfigVersion.cmake COMPATIBILITY SameMajorVersion)
    install(FILES ${PROJECT_BINARY_DIR}/QivConfig.cmake ${PROJECT_BINARY_DIR}/QivConfigVersion.cmake
        DESTINATION ${destination} COMPONENT dev)
    install(EXPORT QivTargets NAMESPACE Qiv:: DESTINATION ${destination} COMPONENT dev)
    # What programs in other languages need lies beside the tool.
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/schema/ DESTINATION ${CMAKE_INSTALL_DATADIR}/qiv/schema
        COMPONENT tool FILES_MATCHING PATTERN *.json PATTERN *.d.ts)
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/tests/cases/ DESTINATION ${CMAKE_INSTALL_DATADIR}/qiv/cases COMPONENT tool)
endfunction()
