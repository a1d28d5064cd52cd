#!/usr/bin/env bash
# Runs a program for Windows under Wine, with its output as programs here write it: lines end in LF,
# and the status is the program's. WINEPATH names the folders of libraries.
# Usage: wine.sh PROGRAM ARGUMENT...
export WINEDEBUG=${WINEDEBUG:--all,err+module}
# Wine keeps variables that begin with QT_ to itself, and takes WINEQT_ for them.
for name in ${!QT_@}; do
    export "WINE$name=${!name}"
done
program=$1
shift
[ -e "$program.exe" ] && program+=.exe
{
    wine "$program" "$@" 2>&1 >&3 3>&- | sed -u 's/\r$//' >&2
    exit "${PIPESTATUS[0]}"
} 3>&1 | sed -u 's/\r$//'
exit "${PIPESTATUS[0]}"
