#!/usr/bin/env bash
# Without any of the libraries that come with it the program does not start, and one line names the
# library. Of those that it cannot begin without, the system's loader speaks: Windows names the first in
# a box, Wine prints all that cannot be loaded.
# Usage: missing-libraries.sh UNPACKED WORK EMULATOR
set -u
unpacked=$1 work=$2 emulator=$3
unset WINEPATH
rm -rf "$work"
cp -r "$unpacked" "$work"
cd "$work" || exit 1
failed=0
not_loaded=53  # the last byte of 0xc0000135

start() {
    local status
    "$emulator" bin/canvas-workbench --exit >printed 2>errors
    status=$?
    grep -v '^This plugin does not support' errors >complained
    return $status
}
# Without what Wine adds to the program's own words.
export WINEDEBUG=-all
start || { cat complained; echo "with all libraries: status $?"; exit 1; }
[ ! -s complained ] || { cat complained; echo "with all libraries: not quiet"; exit 1; }
# Canvas_Dimensions is opened by its menu entry; the other platform serves runs on a screen.
for library in $(find . -name '*.dll' ! -name Canvas_Dimensions.dll ! -name qwindows.dll | sort); do
    mv "$library" away
    start
    status=$?
    if [ $status -eq $not_loaded ]; then
        WINEDEBUG=-all,err+module start
        sed -n 's/.*import_dll Library \([^ ]*\) .* not found/\1/p' complained | sort -u |
            while read -r name; do [ -e "bin/$name" ] || echo "$name"; done >named
    else
        cp complained named
    fi
    mv away "$library"
    name=${library##*/}
    name=${name%.dll}
    [ "$name" = qoffscreen ] && name=offscreen
    if [ $status -eq 0 ] || [ "$(wc -l <named)" -ne 1 ] || ! grep -qF "$name" named; then
        echo "$library: status $status, and not one line that names it:"
        head -n 5 named
        failed=1
    fi
done
exit $failed
