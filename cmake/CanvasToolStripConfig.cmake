include(CMakeFindDependencyMacro)
find_dependency(Qt5 5.15 COMPONENTS Core)
include(${CMAKE_CURRENT_LIST_DIR}/CanvasToolStripTargets.cmake)

# The folder of Canvas_Tool_Strip.so, which a host opens at run time.
get_filename_component(CanvasToolStrip_MODULE_DIR
    ${CMAKE_CURRENT_LIST_DIR}/../../canvas-tool-strip/modules ABSOLUTE)
