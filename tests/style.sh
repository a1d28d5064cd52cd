#!/usr/bin/env bash
# Every source file is formatted as .clang-format says, and none grows beyond 500 lines. All are plain
# ASCII, which every compiler reads alike: other letters are in translations/, or as \u escapes.
set -u
cd "$1" || exit 1
mapfile -t files < <(find . \( -path ./build -o -path ./.git \) -prune -o \
    \( -name '*.cpp' -o -name '*.h' \) -print)
[ "${#files[@]}" -gt 0 ] || { echo "no source files"; exit 1; }
# Phrases that were replaced by plainer ones, in documents and in sources of module, host, workbench.
if grep -rnIiFf tests/phrases.txt README.md CONTRIBUTING.md CHANGELOG.md docs \
    plugin toolbar addfeature dimensions host workbench packaging; then
    echo "see tests/phrases.txt"
    exit 1
fi
# They are not in these either. Of the tests without quoted texts: rows, and what programs print.
found=$(grep -rnIiFf tests/phrases.txt benchmarks host_check examples scripts cmake ./*.sh ./*.txt
    grep -rnI '' --exclude=phrases.txt tests | sed 's/"[^"]*"//g' | grep -iFf tests/phrases.txt)
if [ -n "$found" ]; then
    printf '%s\n' "$found" "see tests/phrases.txt"
    exit 1
fi
clang-format --dry-run -Werror "${files[@]}" || exit 1
mapfile -t scripts < <(find . \( -path ./build -o -path ./.git \) -prune -o \
    \( -name CMakeLists.txt -o -name '*.cmake' -o -name '*.in' -o -name '*.ui' -o -name '*.qrc' \
    -o -name '*.sh' -o -name '*.py' -o -name '*.map' \) -print)
if LC_ALL=C grep -nP '[^\x00-\x7F]' "${files[@]}" "${scripts[@]}"; then
    echo "letters that are not ASCII"
    exit 1
fi
awk 'FNR == 501 { print FILENAME ": more than 500 lines"; bad = 1 } END { exit bad }' "${files[@]}"
