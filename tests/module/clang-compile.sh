#!/usr/bin/env bash
# Clang takes every file of the tree without a warning, as the preset "clang" compiles it, but without
# generating code. What the build generates is taken from an existing build; the pictures as rcc writes
# them are left out.
# Usage: clang-compile.sh SOURCE BUILD WORK
set -u
source=$1 build=$2 work=$3
rm -rf "$work"
mkdir -p "$work"
cmake -S "$source" --preset clang -B "$work/build" -DCTS_WERROR=ON >"$work/configure.log" 2>&1 ||
    { cat "$work/configure.log"; exit 1; }

mapfile -t commands < <(
    sed -nE 's/^ *"command": "(.*)",$/\1/p' "$work/build/compile_commands.json" |
        sed -E "s/\\\\(.)/\\1/g; s#$work/build/#$build/#g; s# -o [^ ]+ -c # -fsyntax-only #" |
        grep -v '/qrc_[^ /]*\.cpp' | sort -u)
[ "${#commands[@]}" -gt 0 ] || { echo "no compile commands"; exit 1; }
echo "${#commands[@]} files"
printf '%s\0' "${commands[@]}" | xargs -0 -P "$(nproc)" -I COMMAND sh -c COMMAND
