#!/usr/bin/env bash
# Without any of the libraries that come with it the program does not start, and one line names the
# library: the program's own where it can speak, otherwise the system's.
# Usage: missing-libraries.sh UNPACKED WORK EMULATOR
set -u
unpacked=$1 work=$2 emulator=$3
unset WINEPATH
rm -rf "$work"
cp -r "$unpacked" "$work"
cd "$work" || exit 1
failed=0

start() {
    "$emulator" bin/canvas-workbench --exit >printed 2>complained
}
start || { cat complained; echo "with all libraries: status $?"; exit 1; }
[ ! -s complained ] || { cat complained; echo "with all libraries: not quiet"; exit 1; }
# Canvas_Dimensions is opened by its menu entry; the other platform serves runs on a screen.
for library in $(find . -name '*.dll' ! -name Canvas_Dimensions.dll ! -name qwindows.dll | sort); do
    mv "$library" away
    start
    status=$?
    mv away "$library"
    name=${library##*/}
    [ "$name" = qoffscreen.dll ] && name=offscreen
    # What Wine adds names the program.
    lines=$(grep -vcE 'Importing dlls for .* failed' complained)
    if [ $status -eq 0 ] || [ "$lines" -ne 1 ] || ! grep -qF "$name" complained; then
        echo "$library: status $status, and not one line that names it:"
        cat complained
        failed=1
    fi
done
exit $failed
