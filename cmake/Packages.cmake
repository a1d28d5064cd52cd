# Three Debian packages: the module; the workbench with the stand-ins of the host's libraries; and
# what is needed to build a module or a host: headers, the protocol library, the CMake packages.
# To make them: cpack --config build/release/CPackConfig.cmake -B build/packages

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME canvas-tool-strip)
set(CPACK_PACKAGE_VENDOR "Canvas Tool Strip")
set(CPACK_PACKAGE_CONTACT "Canvas Tool Strip developers <developers@canvas-tool-strip.invalid>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE
    GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENTS_ALL module workbench host development)
set(CPACK_COMPONENT_HOST_GROUP workbench)
set(CPACK_COMPONENT_WORKBENCH_GROUP workbench)
set(CPACK_COMPONENT_MODULE_GROUP module)
set(CPACK_COMPONENT_DEVELOPMENT_GROUP dev)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION electronics)
# System libraries are found from what is linked; the stand-ins come with the workbench.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_MODULE_PACKAGE_NAME canvas-tool-strip)
set(CPACK_DEBIAN_MODULE_DESCRIPTION "edit toolbar of a CAM editor for printed-circuit boards
A plug-in with 26 edit tools, the dialog in which a new line, pad, surface,
arc or text is described, and the Dimensions form. It is loaded by a host
application, which supplies the job, the units and the canvas.

A small host, to see it at work, is in canvas-tool-strip-workbench.")
set(CPACK_DEBIAN_WORKBENCH_PACKAGE_NAME canvas-tool-strip-workbench)
set(CPACK_DEBIAN_WORKBENCH_PACKAGE_DEPENDS
    "canvas-tool-strip (= ${PROJECT_VERSION}), qttranslations5-l10n")
set(CPACK_DEBIAN_WORKBENCH_PACKAGE_RECOMMENDS fonts-wqy-microhei)
set(CPACK_DEBIAN_WORKBENCH_DESCRIPTION "small host application for the Canvas Tool Strip
The workbench shows the edit toolbar at work: on a canvas whose boards can
be saved and exported as Gerber, PNG or SVG, with a monitor of every message
between the modules, and with sessions that are recorded and played again.")
set(CPACK_DEBIAN_DEV_PACKAGE_NAME canvas-tool-strip-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS
    "canvas-tool-strip-workbench (= ${PROJECT_VERSION}), qtbase5-dev (>= 5.15)")
set(CPACK_DEBIAN_DEV_DESCRIPTION "files to build hosts and siblings of the Canvas Tool Strip
Headers of the libraries that a host supplies, the protocol library that
modules share (message codes, keys and values), and the CMake packages
CanvasHost and CanvasToolStrip.")
include(CPack)

# What every package says about itself, and how the workbench is found on a desktop.
set(sources ${PROJECT_SOURCE_DIR}/packaging)
set(prepared ${PROJECT_BINARY_DIR}/packaging)
configure_file(${sources}/changelog.in ${prepared}/changelog @ONLY)
configure_file(${sources}/canvas-workbench.metainfo.xml.in
    ${prepared}/canvas-workbench.metainfo.xml @ONLY)
add_custom_command(OUTPUT ${prepared}/changelog.gz ${prepared}/canvas-workbench.1.gz
    COMMAND gzip -9nc ${prepared}/changelog > ${prepared}/changelog.gz
    COMMAND gzip -9nc ${sources}/canvas-workbench.1 > ${prepared}/canvas-workbench.1.gz
    DEPENDS ${prepared}/changelog ${sources}/canvas-workbench.1
    VERBATIM)
add_custom_target(package_papers ALL
    DEPENDS ${prepared}/changelog.gz ${prepared}/canvas-workbench.1.gz)
set(papers ${sources}/copyright ${prepared}/changelog.gz)
set(papers_dir ${CMAKE_INSTALL_DATADIR}/doc/canvas-tool-strip)
install(FILES ${papers} DESTINATION ${papers_dir} COMPONENT module)
install(FILES ${papers} DESTINATION ${papers_dir}-workbench COMPONENT workbench)
install(FILES ${papers} DESTINATION ${papers_dir}-dev COMPONENT development)
install(FILES ${sources}/canvas-workbench.desktop
    DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT workbench)
install(FILES ${sources}/canvas-workbench.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT workbench)
install(FILES ${prepared}/canvas-workbench.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT workbench)
install(FILES ${prepared}/canvas-workbench.1.gz
    DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT workbench)
