# The target "doc": the API reference of the headers, in doc/html of the build folder. Any warning is an
# error.
find_package(Doxygen QUIET)
if(DOXYGEN_FOUND)
  configure_file(${PROJECT_SOURCE_DIR}/docs/Doxyfile ${PROJECT_BINARY_DIR}/Doxyfile @ONLY)
  add_custom_target(doc
    COMMAND ${DOXYGEN_EXECUTABLE} ${PROJECT_BINARY_DIR}/Doxyfile
    WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
    COMMENT "Writing the API reference to ${PROJECT_BINARY_DIR}/doc/html"
    VERBATIM)
else()
  add_custom_target(doc
    COMMAND ${CMAKE_COMMAND} -E echo "Doxygen is missing: run scripts/setup docs, then configure again"
    COMMAND ${CMAKE_COMMAND} -E false
    VERBATIM)
endif()
