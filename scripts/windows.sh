#!/usr/bin/env bash
# Builds everything for Windows with Debian's cross compiler, and tests it under Wine.
# Usage: scripts/windows.sh [tools | build | test [ctest options] | zip]
#   tools  installs the compiler, Wine and what else is needed
#   build  Qt and the other libraries, once, which takes twenty minutes or more; then the tree, into
#          build/windows
#   test   builds what has changed, and runs the tests
#   zip    makes what is given away, two zips in build/windows, and tests them beside the build for
#          Linux
# Without a step the first three are done. What was broken off goes on where it was. The libraries are kept
# in the folder CTS_WINDOWS_CACHE, by default ~/.cache/canvas-tool-strip/windows.
set -u
. "$(dirname "$0")/prepare.sh"

say() { printf '%(%H:%M:%S)T %s\n' -1 "$*"; }
fail() {
    echo "$*" >&2
    exit 1
}
out=build/windows
. scripts/windows/libraries.sh
. scripts/windows/zip.sh

# The tree is configured from the start when it finds other libraries than last time.
build_tree() {
    local fresh=()
    say "the tree, into $out"
    [ "$(cat "$out/libraries" 2>/dev/null)" = "${prefixes[*]}" ] || fresh=(--fresh)
    mkdir -p "$out"
    cmake --preset windows "${fresh[@]}" -DCMAKE_PREFIX_PATH="$(IFS=';'; echo "${prefixes[*]}")" \
        >"$out/configure.log" 2>&1 ||
        { tail -n 30 "$out/configure.log" >&2; fail "configuring failed"; }
    echo "${prefixes[*]}" >"$out/libraries"
    cmake --build "$out" || exit 1
}

# wine_folder NAME: a folder for Wine, made once.
wine_folder() {
    export WINEPREFIX=$root/$out/$1
    [ -e "$WINEPREFIX/complete" ] && return
    say "Wine's folder $1"
    rm -rf "$WINEPREFIX"
    wineboot --init >"$out/wine.log" 2>&1 || { cat "$out/wine.log"; fail "Wine does not start"; }
    wineserver --wait
    touch "$WINEPREFIX/complete"
}

# What a program needs to run under Wine, and a server that stays. Tests on a display have another
# folder, and so a server that starts and ends with each: one server knows one screen.
start_wine() {
    export WINEDEBUG=-all,err+module WINEDLLOVERRIDES='mscoree=;mshtml='
    WINEPATH=$root/$out/modules\;$root/$out/system\;$(printf '%s/bin;' "${prefixes[@]}")
    export WINEPATH
    # Without a screen Qt draws with the fonts of one folder.
    export QT_QPA_FONTDIR=$root/$out/fonts
    mkdir -p "$QT_QPA_FONTDIR"
    ln -sf $(dpkg -L fonts-dejavu-core fonts-wqy-microhei | grep '\.tt[cf]$') "$QT_QPA_FONTDIR"
    wine_folder wine-on-display
    wine_folder wine  # the one that counts from here on
    # The server and Wine's services hold the output of the program that they were started by, and
    # keep its reader waiting. They stay as long as this one program does.
    coproc wine cmd >/dev/null 2>&1
    trap 'wineserver --kill' EXIT
    wineboot >/dev/null 2>&1
}

run_tests() {
    say "tests"
    start_wine
    ctest --test-dir "$out" --output-on-failure --label-exclude 'border|zip' \
        --parallel "$((2 * $(nproc)))" "$@"
}

# What is unpacked from a zip finds nothing by WINEPATH.
test_zips() {
    build release workbench_all
    say "tests of the zips"
    start_wine
    ctest --test-dir "$out" --output-on-failure --label-regex zip --parallel "$((2 * $(nproc)))" "$@"
}

need_packages build run bench test windows
case ${1:-all} in
all) build_libraries && build_tree && run_tests ;;
tools) ;;
build) build_libraries && build_tree ;;
test) build_libraries && build_tree && run_tests "${@:2}" ;;
zip) build_libraries && build_tree && make_zips && test_zips ;;
*) fail "unknown step \"$1\": tools, build, test or zip" ;;
esac
