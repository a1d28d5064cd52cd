#!/usr/bin/env bash
# Line and branch coverage of the module by the whole test suite, folder by folder; the least that is
# asked of lines is 98 %. Usage: scripts/coverage.sh   (the report: build/coverage/report/index.html)
set -u
. "$(dirname "$0")/prepare.sh"
least=98

need_packages build run test analysis
build coverage all
find build/coverage -name '*.gcda' -delete
# A test of a copy of the tree or of packages has nothing to count.
ctest --test-dir build/coverage --parallel "$(nproc)" --label-exclude install \
    >build/coverage/tests.log 2>&1 || { tail -n 15 build/coverage/tests.log; exit 1; }

mkdir -p build/coverage/report
status=0
for folder in plugin toolbar addfeature dimensions; do
    printf '%-12s' "$folder"
    # Branches that only an exception takes are the compiler's, not the source's.
    gcovr --root . --filter "$folder/" --exclude '.*/standalone/' --exclude-throw-branches \
        --exclude-unreachable-branches --print-summary --fail-under-line "$least" \
        --html-details "build/coverage/report/$folder.html" --output build/coverage/report/all.txt \
        build/coverage 2>/dev/null | grep -E '^(lines|branches)' | tr '\n' ' '
    [ "${PIPESTATUS[0]}" -eq 0 ] || { printf ' less than %s %%' "$least"; status=1; }
    echo
done
exit $status
