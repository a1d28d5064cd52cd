# The library that a host loads: Canvas_Tool_Strip.so, with exactly its documented exports.

add_library(Canvas_Tool_Strip SHARED)
if(CTS_MUTATION)  # the sources are in a library of their own, and none is left here
    target_sources(Canvas_Tool_Strip PRIVATE ${CMAKE_BINARY_DIR}/precompiled.cpp)
endif()
target_link_libraries(Canvas_Tool_Strip PRIVATE cts_settings CanvasToolStripObjects)
set_target_properties(Canvas_Tool_Strip PROPERTIES
    PREFIX ""
    LIBRARY_OUTPUT_DIRECTORY ${CTS_MODULE_DIR}
    RUNTIME_OUTPUT_DIRECTORY ${CTS_MODULE_DIR}
    INSTALL_RPATH "$ORIGIN/../host")
if(UNIX AND NOT APPLE)
    # Template instances of Qt and the standard library would be exported as weak symbols otherwise.
    set(CTS_EXPORTS ${CMAKE_CURRENT_SOURCE_DIR}/cmake/Canvas_Tool_Strip.map)
    target_link_options(Canvas_Tool_Strip PRIVATE
        LINKER:--version-script=${CTS_EXPORTS} LINKER:--no-undefined)
    set_target_properties(Canvas_Tool_Strip PROPERTIES LINK_DEPENDS ${CTS_EXPORTS})
endif()
install(TARGETS Canvas_Tool_Strip
    LIBRARY DESTINATION ${CTS_INSTALL_MODULE_DIR} COMPONENT module
    RUNTIME DESTINATION ${CTS_INSTALL_MODULE_DIR} COMPONENT module
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
