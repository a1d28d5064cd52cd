#!/usr/bin/env bash
# Line and branch coverage of the module by its unit tests, folder by folder; lines must reach 98 %.
# Usage: scripts/coverage.sh   (the report: build/coverage/report/*.html)
set -u
. "$(dirname "$0")/prepare.sh"
least=98

need_packages build run test analysis
rooms='accessibility contract dialog dimensions fields language pages reliability toolbar'
tests="^((${rooms// /|})\\.|random_use\$)"
[ -f build/coverage/build.ninja ] || cmake --preset coverage >/dev/null || exit 1
read -ra programs <<<"$rooms"
build coverage "${programs[@]/#/tests_}" random_use
find build/coverage -name '*.gcda' -delete
ctest --test-dir build/coverage --parallel "$(nproc)" -R "$tests" \
    >build/coverage/tests.log 2>&1 || { tail -n 15 build/coverage/tests.log; exit 1; }

mkdir -p build/coverage/report
status=0
# The folders that the module is built from.
mapfile -t folders < <(sed -n "s,^$PWD/\([a-z]*\)/.*\.cpp\$,\1,p" \
    build/coverage/tests/module/module-sources.txt | grep -vx build | sort -u)
for folder in "${folders[@]}"; do
    printf '%-12s' "$folder"
    # Branches that only an exception takes come from the compiler, not the source.
    gcovr --root . --filter "$folder/" --exclude '.*/standalone/' --exclude-throw-branches \
        --exclude-unreachable-branches --print-summary --fail-under-line "$least" \
        --html-details "build/coverage/report/$folder.html" --output build/coverage/report/all.txt \
        build/coverage 2>/dev/null | grep -E '^(lines|branches)' | tr '\n' ' '
    [ "${PIPESTATUS[0]}" -eq 0 ] || { printf ' less than %s %%' "$least"; status=1; }
    echo
done
exit $status
