#!/usr/bin/env bash
# Every source file is formatted as .clang-format says, and none grows beyond 500 lines.
set -u
cd "$1" || exit 1
mapfile -t files < <(find . \( -path ./build -o -path ./.git \) -prune -o \
    \( -name '*.cpp' -o -name '*.h' \) -print)
[ "${#files[@]}" -gt 0 ] || { echo "no source files"; exit 1; }
clang-format --dry-run -Werror "${files[@]}" || exit 1
awk 'FNR == 501 { print FILENAME ": more than 500 lines"; bad = 1 } END { exit bad }' "${files[@]}"
