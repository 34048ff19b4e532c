# The target docs: the reference of the public headers, as HTML below <build>/docs.
find_package(Doxygen REQUIRED)
configure_file(${PROJECT_SOURCE_DIR}/docs/Doxyfile.in ${PROJECT_BINARY_DIR}/docs/Doxyfile @ONLY)
add_custom_target(docs COMMAND Doxygen::doxygen ${PROJECT_BINARY_DIR}/docs/Doxyfile
    WORKING_DIRECTORY ${PROJECT_SOURCE_DIR} COMMENT "Doxygen" VERBATIM)
