#!/bin/sh
# The three Debian packages hold what they should, and the workbench runs from where they put it.
# Usage: packages.sh CPACK BUILD WORK
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
private=usr/lib/canvas-tool-strip
holds "$module" $private/modules/Canvas_Tool_Strip.so \
    $private/translations/Canvas_Tool_Strip_zh_CN.qm
holds "$workbench" usr/bin/canvas-workbench $private/modules/Canvas_Viewer.so \
    $private/modules/Canvas_JobTree.so $private/modules/Canvas_Dimensions.so \
    $private/translations/workbench_zh_CN.qm $private/translations/workbench_en.qm \
    $private/host/libCanvasHostPluginManager.so.2 \
    usr/share/canvas-tool-strip/samples/board.json \
    usr/share/canvas-tool-strip/samples/sessions/unit.session \
    usr/share/applications/canvas-workbench.desktop \
    usr/share/metainfo/canvas-workbench.metainfo.xml
holds "$development" include/CanvasHost/PluginMetaData.h include/CanvasHost/cam_api.h \
    include/CanvasToolStrip/plugin/RecordKeys.h libcanvas_tool_strip_protocol.a \
    include/CanvasToolStrip/toolbar/Canvas_Tool_Strip.h \
    cmake/CanvasHost/CanvasHostConfig.cmake cmake/CanvasToolStrip/CanvasToolStripConfig.cmake \
    cmake/CanvasToolStrip/CanvasToolStripConfigVersion.cmake \
    $private/host/libCanvasHostPluginManager.so
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
# No library of ours is where other programs look for theirs.
if dpkg-deb -c "$workbench" | grep -E ' \./usr/lib/([^/]*-linux-gnu[^/]*/)?[^/]+\.so'; then
    echo "the workbench's libraries are not private"
    exit 1
fi

# Everything that a program of the packages loads is found, beside it or in a package it depends on.
installed=$work/installed
for package in "$module" "$workbench" "$development"; do
    dpkg-deb -x "$package" "$installed"
done
find "$installed" -name '*.so*' -type f >"$work/programs"
echo "$installed/usr/bin/canvas-workbench" >>"$work/programs"
while read -r program; do
    ldd "$program" >"$work/libraries"
    if grep -F 'not found' "$work/libraries"; then
        echo "$program: libraries are missing"
        exit 1
    fi
    if grep CanvasHost "$work/libraries" | grep -vF " $installed/"; then
        echo "$program: takes a stand-in from elsewhere"
        exit 1
    fi
done <"$work/programs"
samples=$installed/usr/share/canvas-tool-strip/samples
"$installed/usr/bin/canvas-workbench" --play "$samples/sessions/unit.session" --exit

# The menu entry starts that program, and its picture exists.
entry=$installed/usr/share/applications/canvas-workbench.desktop
[ -x "$installed/usr/bin/$(sed -nE 's/^Exec=([^ ]+).*/\1/p' "$entry")" ] || { echo "no such program"; exit 1; }
icon=$(sed -n 's/^Icon=//p' "$entry")
[ -f "$installed/usr/share/icons/hicolor/scalable/apps/$icon.svg" ] || { echo "no icon"; exit 1; }

# The manual page has the options of the program.
"$installed/usr/bin/canvas-workbench" --help | grep -oE -- '--[a-z-]+' | sort -u >"$work/options"
gzip -dc "$installed/usr/share/man/man1/canvas-workbench.1.gz" | sed 's/\\-/-/g' |
    sed -n '/^\.SH OPTIONS/,/^\.SH EXIT/p' | grep -oE -- '--[a-z-]+' | sort -u >"$work/manual"
diff "$work/options" "$work/manual" || { echo "the manual page has other options"; exit 1; }
