#!/usr/bin/env bash
# Started from a console, the program prints there, and its status arrives; it is a program that opens
# no console of its own.
# Usage: console.sh UNPACKED EMULATOR VERSION
set -u
unpacked=$1 emulator=$2 version=$3
unset WINEPATH
cd "$unpacked/bin" || exit 1
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT

# A terminal here is a console there, with cmd in it.
printf '@echo off\r\ncanvas-workbench.exe %%*\r\necho status %%errorlevel%%\r\n' >"$out/start.bat"
# console ARGUMENT...: what is seen
console() {
    TERM=xterm script -qec "wine cmd /c '$out/start.bat' $*" "$out/log" </dev/null >/dev/null
    # A step to the right is a blank; nothing else that moves the cursor matters.
    sed -E 's/\x1b\[[0-9]*C/ /g; s/\x1b\[[0-9;?]*[A-Za-z]//g; s/\r//g' "$out/log"
}
# expect TEXT...: in what is seen
expect() {
    for text in "$@"; do
        grep -qF -- "$text" "$out/seen" || { cat "$out/seen"; echo "not in the console: $text"; exit 1; }
    done
}
console --version >"$out/seen"
expect "workbench $version" "status 0"
console --help >"$out/seen"
expect "--font-size <points>" "status 0"
console --bogus >"$out/seen"
expect "Unknown option 'bogus'; see --help" "status 2"

# To a file or a pipe it prints as any program.
[ "$("$emulator" canvas-workbench --version)" = "workbench $version" ] || { echo "nothing in a pipe"; exit 1; }
"$emulator" canvas-workbench --bogus 2>"$out/seen"
[ $? -eq 2 ] || { echo "not status 2"; exit 1; }
expect "Unknown option 'bogus'"

x86_64-w64-mingw32-objdump -p canvas-workbench.exe | grep -q 'Subsystem.*(Windows GUI)' ||
    { echo "it opens a console"; exit 1; }
