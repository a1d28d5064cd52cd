# How a host wraps its own libraries as the CMake package CanvasHost, to build the tool strip
# against them. Copy this file into your tree, put your names in, and pass its folder:
#
#   cmake -S . -B build/host -DCanvasHost_DIR=/path/to/this/folder -DCANVAS_HOST_ROOT=/path/to/host
#
# The five targets have the names that the module asks for. Everything else is yours.

set(CANVAS_HOST_ROOT "/opt/host" CACHE PATH "The host: include/, lib/ and, on Windows, bin/")

# The libraries are built against Qt's widgets, and so is any code that includes their headers.
# find_dependency passes on what the caller said about the package: whether it is required, and
# whether to be quiet.
include(CMakeFindDependencyMacro)
find_dependency(Qt5 5.15 COMPONENTS Core Gui Widgets)

# host_library(<target> <file> <targets that its header needs>...)
function(host_library target file)
    # An imported target represents a file that already exists: nothing is built.
    add_library(CanvasHost::${target} SHARED IMPORTED)
    if(WIN32)
        # What is opened at run time, and the import library that the module is linked with. If the
        # host has a debug library as well, add IMPORTED_LOCATION_DEBUG and IMPORTED_IMPLIB_DEBUG.
        set(location ${CANVAS_HOST_ROOT}/bin/${file}.dll)
        set_target_properties(CanvasHost::${target} PROPERTIES
            IMPORTED_IMPLIB ${CANVAS_HOST_ROOT}/lib/${file}.lib)
    else()
        set(location ${CANVAS_HOST_ROOT}/lib/lib${file}.so)
    endif()
    if(NOT EXISTS ${location})
        set(CanvasHost_FOUND FALSE PARENT_SCOPE)
        set(CanvasHost_NOT_FOUND_MESSAGE "${location} is missing: is CANVAS_HOST_ROOT right?" PARENT_SCOPE)
    endif()
    set_target_properties(CanvasHost::${target} PROPERTIES
        IMPORTED_LOCATION ${location}
        # Each header is included by its bare name: <ui_api.h>.
        INTERFACE_INCLUDE_DIRECTORIES ${CANVAS_HOST_ROOT}/include
        INTERFACE_LINK_LIBRARIES "${ARGN}")
endfunction()

# The envelope of the messages is header-only. All modules of the host share this one.
add_library(CanvasHost::Envelope INTERFACE IMPORTED)
set_target_properties(CanvasHost::Envelope PROPERTIES
    INTERFACE_INCLUDE_DIRECTORIES ${CANVAS_HOST_ROOT}/include
    INTERFACE_LINK_LIBRARIES Qt5::Core)

#            Target         The host's file  What its header includes
host_library(PluginManager  host_plugins     CanvasHost::Envelope)
host_library(CamApi         host_cam)
host_library(UiApi          host_ui          CanvasHost::CamApi Qt5::Widgets)
# This library may use the class of the tool strip, and the tool strip uses it. On Linux it leaves the
# class undefined, and the program has to provide it: it links the module, or opens the module with
# QLibrary::ExportExternalSymbolsHint before this library is loaded.
host_library(CommonWidgets  host_widgets     Qt5::Widgets)
