#!/usr/bin/env bash
# Every source file is formatted as .clang-format says, and none grows beyond 500 lines. All are plain
# ASCII, which every compiler reads alike: other letters are in translations/, or as \u escapes.
# Words are spelled right; .codespellrc has the exceptions.
set -u
cd "$1" || exit 1
mapfile -t files < <(find . \( -path ./build -o -path ./.git \) -prune -o \
    \( -name '*.cpp' -o -name '*.h' \) -print)
[ "${#files[@]}" -gt 0 ] || { echo "no source files"; exit 1; }
codespell || exit 1
clang-format --dry-run -Werror "${files[@]}" || exit 1
mapfile -t scripts < <(find . \( -path ./build -o -path ./.git \) -prune -o \
    \( -name CMakeLists.txt -o -name '*.cmake' -o -name '*.in' -o -name '*.ui' -o -name '*.qrc' \
    -o -name '*.sh' -o -name '*.py' -o -name '*.map' \) -print)
if LC_ALL=C grep -nP '[^\x00-\x7F]' "${files[@]}" "${scripts[@]}"; then
    echo "letters that are not ASCII"
    exit 1
fi
awk 'FNR == 501 { print FILENAME ": more than 500 lines"; bad = 1 } END { exit bad }' "${files[@]}"
