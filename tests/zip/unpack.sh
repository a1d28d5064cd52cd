#!/usr/bin/env bash
# Unpacks both zips, and checks what is in them: names, dates and licences.
# Usage: unpack.sh ZIP FOLDER SOURCES   (ZIP without its ending: the other one ends in -dev.zip)
set -eu
zip=$1 folder=$2 sources=$3
name=${zip##*/}
rm -rf "$folder"
mkdir -p "$folder"
cd "$folder"
for one in "$name" "$name-dev"; do
    cmake -E tar xf "${zip%/*}/$one.zip"
    # One folder, which has the zip's name; all dates are one.
    [ -d "$one" ] || { echo "$one.zip holds no folder of that name"; exit 1; }
    dates=$(find "$one" -type f -printf '%T@\n' | sort -u | wc -l)
    [ "$dates" -eq 1 ] || { echo "$one.zip has files of $dates dates"; exit 1; }
    # Programs have one within as well; that of a file is even.
    date=$(stat -c %Y "$one/README.txt")
    for program in $(find "$one" -name '*.exe' -o -name '*.dll'); do
        within=$(x86_64-w64-mingw32-objdump -p "$program" | sed -nE 's/^Time\/Date\s+//p' | head -n 1)
        within=$(date -d "$within" +%s)
        [ $(((within - date) / 2)) -eq 0 ] || { echo "$program is of another date"; exit 1; }
    done
done
[ "$(ls | wc -l)" -eq 2 ] || { ls; echo "more than a folder in each zip"; exit 1; }

# holds FILE...: the folder that we are in holds these files.
holds() {
    for file in "$@"; do
        [ -s "$file" ] || { echo "${PWD##*/}: no $file"; exit 1; }
    done
}
# same FOLDER OURS: all that is in FOLDER of the sources is here in OURS, and nothing else.
same() {
    diff -r "$sources/$1" "$2" || { echo "${PWD##*/}: $2 is not as $1"; exit 1; }
}
private=lib/canvas-tool-strip
cd "$name"
holds README.txt LICENSE.txt CHANGELOG.md bin/canvas-workbench.exe \
    $private/modules/Canvas_{Tool_Strip,Viewer,JobTree,Dimensions}.dll \
    translations/qtbase_zh_CN.qm share/doc/canvas-tool-strip/docs/protocol.md
for file in "$sources"/translations/*.ts; do
    file=${file##*/}
    holds "$private/translations/${file%.ts}.qm"
done
same workbench/samples share/canvas-tool-strip/samples
same workbench/docs share/doc/canvas-tool-strip/workbench/docs
wrestool -l --type=group_icon bin/canvas-workbench.exe | grep -q . || { echo "no icon"; exit 1; }
if find . -name '*.h' -o -name '*.a' -o -name '*.cmake' | grep .; then
    echo "$name: files for development"
    exit 1
fi
# All that comes from elsewhere is in the list of licences, and these are there.
for file in $(find bin plugins translations -type f ! -name 'libCanvasHost*' ! -name '*.exe' ! -name qt.conf); do
    source=$(awk -v file="$file" '$1 == file { sub(",", "", $2); print $2 }' licences/README.txt)
    [ -n "$source" ] || { echo "$file: under which licence?"; exit 1; }
    holds "licences/$source.txt"
done
for text in $(grep -ohE '/common-licenses/[A-Za-z0-9.-]*[A-Za-z0-9]' licences/*.txt | sort -u); do
    holds "licences/common/${text##*/}"
done
cd "../$name-dev"
holds README.txt LICENSE.txt $private/modules/Canvas_Tool_Strip.dll bin/host_check{,_pair}.exe \
    lib/lib{Canvas_Tool_Strip.dll,CanvasHostUiApi.dll,canvas_tool_strip_protocol}.a \
    lib/cmake/{CanvasHost/CanvasHost,CanvasToolStrip/CanvasToolStrip}Config{,Version}.cmake \
    include/CanvasHost/ui_api.h include/CanvasToolStrip/plugin/PluginEntry.h docs/integrating.md \
    cmake/mingw-w64.cmake scripts/windows/wine.sh
same examples examples
if find . -iname '*Qt5*' -o -name 'libglog*' | grep .; then
    echo "$name-dev: libraries that a host brings itself"
    exit 1
fi
