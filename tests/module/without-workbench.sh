#!/bin/sh
# Without the workbench nothing asks for Qt's Svg, zint or Clipper; module, stand-ins and host_check
# are there to be built. Usage: without-workbench.sh SOURCE WORK
set -eu
source=$1 work=$2
rm -rf "$work"
mkdir -p "$work"
cmake -S "$source" -B "$work" -G Ninja -DCTS_WORKBENCH=OFF -DCMAKE_DISABLE_FIND_PACKAGE_Qt5Svg=ON \
    >"$work/log" 2>&1 || { cat "$work/log"; exit 1; }
for target in Canvas_Tool_Strip CanvasHostUiApi host_check; do
    grep -q "^build $target:" "$work/build.ninja" || { echo "no target $target"; exit 1; }
done
# Names of folders that no file shall tell say nothing.
if sed 's/-fmacro-prefix-map=[^ ]*//g' "$work/build.ninja" | grep -oE 'libzint|polyclipping|Qt5Svg' ||
    grep '^CTS_\(ZINT\|CLIPPER\)' "$work/CMakeCache.txt"; then
    echo "asked for without the workbench"
    exit 1
fi
