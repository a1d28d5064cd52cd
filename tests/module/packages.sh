#!/bin/sh
# The three Debian packages hold what they should. Usage: packages.sh CPACK BUILD WORK
set -eu
cpack=$1 build=$2 work=$3
rm -rf "$work"
"$cpack" --config "$build/CPackConfig.cmake" -B "$work" >"$work.log" 2>&1 || { cat "$work.log"; exit 1; }
module=$(ls "$work"/canvas-tool-strip_*.deb)
workbench=$(ls "$work"/canvas-tool-strip-workbench_*.deb)
development=$(ls "$work"/canvas-tool-strip-dev_*.deb)
[ "$(ls "$work"/*.deb | wc -l)" -eq 3 ] || { ls "$work"; echo "not three packages"; exit 1; }

# holds PACKAGE FILE...: the package holds these files.
holds() {
    package=$1
    shift
    dpkg-deb -c "$package" >"$work/list"
    for file in "$@"; do
        grep -qE "/$file( ->.*)?\$" "$work/list" || { echo "$package: no $file"; exit 1; }
    done
}
holds "$module" canvas-tool-strip/modules/Canvas_Tool_Strip.so \
    canvas-tool-strip/translations/Canvas_Tool_Strip_zh_CN.qm
holds "$workbench" bin/workbench canvas-tool-strip/modules/Canvas_Viewer.so \
    canvas-tool-strip/modules/Canvas_JobTree.so canvas-tool-strip/modules/Canvas_Dimensions.so \
    canvas-tool-strip/translations/workbench_zh_CN.qm canvas-tool-strip/samples/board.json \
    canvas-tool-strip/samples/sessions/unit.session \
    libCanvasHostPluginManager.so.2
holds "$development" include/CanvasHost/PluginMetaData.h include/CanvasHost/cam_api.h \
    include/CanvasToolStrip/plugin/RecordKeys.h libcanvas_tool_strip_protocol.a \
    cmake/CanvasHost/CanvasHostConfig.cmake cmake/CanvasToolStrip/CanvasToolStripConfig.cmake \
    libCanvasHostPluginManager.so
for package in "$module" "$workbench"; do
    if dpkg-deb -c "$package" | grep -E '\.(h|a)$'; then
        echo "$package: files for development"
        exit 1
    fi
done
if dpkg-deb -c "$module" | grep -E '\.h$|CanvasHost|workbench'; then
    echo "the module's package holds more than the module"
    exit 1
fi
