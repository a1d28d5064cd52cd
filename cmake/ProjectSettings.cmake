# Language level, warnings, sanitizers, output folders: what every target of the tree shares.

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
# Not every Qt 5 that a host may run reads rcc's newer formats; all read version 2.
set(CMAKE_AUTORCC_OPTIONS --format-version 2)
# The meta-object and resource compilers run where a target asks for them: each costs four build
# steps. No AUTOUIC: it would take the host header ui_api.h for a form.

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CTS_MODULE_DIR ${CMAKE_BINARY_DIR}/modules)
# Modules, stand-ins and translations, where no other program looks for libraries.
set(CTS_PRIVATE_DIR ${CMAKE_INSTALL_LIBDIR}/canvas-tool-strip)
set(CTS_INSTALL_MODULE_DIR ${CTS_PRIVATE_DIR}/modules)

find_program(CTS_CCACHE ccache)
if(CTS_CCACHE)
    # A precompiled header carries time stamps that ccache must be told to ignore. What a source
    # includes is known from its compilation: it need not be preprocessed beforehand.
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_DEPEND=true
        CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${CTS_CCACHE})
endif()

add_library(cts_settings INTERFACE)
target_compile_definitions(cts_settings INTERFACE QT_DEPRECATED_WARNINGS)
if(MSVC)
    target_compile_options(cts_settings INTERFACE
        /utf-8 /permissive- /Zc:__cplusplus /W4 $<$<BOOL:${CTS_WERROR}>:/WX>)
elseif(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(cts_settings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
        -Woverloaded-virtual -Wconversion -Wno-sign-conversion $<$<BOOL:${CTS_WERROR}>:-Werror>)
    if(CMAKE_UNITY_BUILD)
        # What is local to a source looks like a header's to the compiler.
        target_compile_options(cts_settings INTERFACE
            $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
    endif()
    if(CMAKE_CXX_COMPILER_ID MATCHES Clang)
        # qCDebug(category) << ... leaves the macro's last argument out.
        target_compile_options(cts_settings INTERFACE -Wno-gnu-zero-variadic-macro-arguments)
    endif()
    if(CTS_CCACHE)
        target_compile_options(cts_settings INTERFACE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
    endif()
endif()
if(CTS_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
if(CTS_COVERAGE)
    add_compile_options(--coverage)
    add_link_options(--coverage)
endif()

# What most sources use, and no more: the templates of all of <QtWidgets> would take each source
# twice as long as all that it adds.
set(CTS_PRECOMPILED_HEADERS
    <QAction> <QApplication> <QCheckBox> <QComboBox> <QDebug> <QDialog> <QDir> <QEvent> <QFile>
    <QGridLayout> <QHash> <QJsonObject> <QLabel> <QLineEdit> <QMap> <QMenu> <QMessageBox> <QPainter>
    <QPointer> <QPushButton> <QRegularExpression> <QSet> <QSpinBox> <QString> <QTimer> <QToolButton>
    <QVariant> <QVector> <algorithm> <functional> <map> <memory> <string> <vector>)
file(WRITE ${CMAKE_BINARY_DIR}/precompiled.cpp "")
find_package(Qt5 5.15 REQUIRED COMPONENTS Widgets)
add_library(cts_precompiled OBJECT ${CMAKE_BINARY_DIR}/precompiled.cpp)
target_link_libraries(cts_precompiled PRIVATE cts_settings Qt5::Widgets)
target_precompile_headers(cts_precompiled PRIVATE ${CTS_PRECOMPILED_HEADERS})

# cts_library(<target> <SHARED|STATIC|OBJECT> <sources...>): the settings above, and Qt's headers,
# precompiled once for all. Libraries without widgets compile with the same ones; a test of who
# includes what keeps the widgets out of them.
function(cts_library target kind)
    add_library(${target} ${kind} ${ARGN})
    target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:cts_settings>)
    target_precompile_headers(${target} REUSE_FROM cts_precompiled)
    foreach(library Qt5::Gui Qt5::Widgets)
        target_include_directories(${target} SYSTEM PRIVATE
            $<TARGET_PROPERTY:${library},INTERFACE_INCLUDE_DIRECTORIES>)
        target_compile_definitions(${target} PRIVATE
            $<TARGET_PROPERTY:${library},INTERFACE_COMPILE_DEFINITIONS>)
    endforeach()
endfunction()
