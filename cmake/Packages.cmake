# Three Debian packages: the module; the workbench with the stand-ins of the host's libraries; and
# what is needed to build a module or a host: headers, the protocol library, the CMake packages.
# Made by: cpack --config build/release/CPackConfig.cmake -B build/packages

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME canvas-tool-strip)
set(CPACK_PACKAGE_VENDOR "Canvas Tool Strip")
set(CPACK_PACKAGE_CONTACT "Canvas Tool Strip developers <developers@canvas-tool-strip.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Edit toolbar of a desktop CAM editor for printed-circuit boards")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL module workbench host development)
set(CPACK_COMPONENT_HOST_GROUP workbench)
set(CPACK_COMPONENT_WORKBENCH_GROUP workbench)
set(CPACK_COMPONENT_MODULE_GROUP module)
set(CPACK_COMPONENT_DEVELOPMENT_GROUP dev)
set(CPACK_COMPONENT_GROUP_WORKBENCH_DESCRIPTION
    "A small host that shows the edit toolbar at work, with a message monitor and sessions.")
set(CPACK_COMPONENT_GROUP_MODULE_DESCRIPTION "The edit toolbar plug-in, to be loaded by a host.")
set(CPACK_COMPONENT_GROUP_DEV_DESCRIPTION
    "Headers of the host's libraries, and the protocol of the edit toolbar for its sibling modules.")

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION electronics)
set(CPACK_DEBIAN_MODULE_PACKAGE_NAME canvas-tool-strip)
set(CPACK_DEBIAN_MODULE_PACKAGE_DEPENDS "libqt5widgets5 (>= 5.15), libgoogle-glog0v6")
set(CPACK_DEBIAN_WORKBENCH_PACKAGE_NAME canvas-tool-strip-workbench)
set(CPACK_DEBIAN_WORKBENCH_PACKAGE_DEPENDS
    "canvas-tool-strip (= ${PROJECT_VERSION}), libqt5widgets5 (>= 5.15), libqt5svg5 (>= 5.15), \
libpolyclipping22, libzint2.11, qttranslations5-l10n")
set(CPACK_DEBIAN_WORKBENCH_PACKAGE_RECOMMENDS "fonts-wqy-microhei")
set(CPACK_DEBIAN_DEV_PACKAGE_NAME canvas-tool-strip-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS
    "canvas-tool-strip-workbench (= ${PROJECT_VERSION}), qtbase5-dev (>= 5.15)")
include(CPack)
