#!/usr/bin/env bash
# Where the time of the last build and of the tests goes: by kind of step, and the longest of each.
# Usage: scripts/where-time-goes.sh [PRESET]   (steps run side by side: the sums are of all cores)
set -eu
cd "$(dirname "$0")/.."
build=build/${1:-release}

ninja -C "$build" -t recompact >/dev/null  # forgets steps that are none any more
# Columns of the log: start, end (milliseconds), time stamp, output, hash of the command.
awk -F '\t' 'NF == 5 { took[$4] = ($2 - $1) / 1000 }
    function kind(name) {
        if (name ~ /cmake_pch/) return "precompiled headers"
        if (name ~ /mocs_compilation/) return "compiled by moc"
        if (name ~ /_autogen/) return "moc and rcc"
        if (name ~ /\.o$/) return name ~ /^(tests|benchmarks)\// ? "tests, benchmarks" : "sources"
        return name ~ /^(bin|lib|modules)\// ? "linked" : "other"
    }
    END {
        for (name in took) { sum[kind(name)] += took[name]; count[kind(name)]++ }
        for (k in sum) printf "%8.1f s %5d steps  %s\n", sum[k], count[k], k
    }' "$build/.ninja_log" | sort -rn
echo "The longest steps:"
awk -F '\t' 'NF == 5 { printf "%8.1f s  %s\n", ($2 - $1) / 1000, $4 }' "$build/.ninja_log" |
    sort -rn | head -n 8
costs=$build/Testing/Temporary/CTestCostData.txt
if [ -f "$costs" ]; then
    echo "The longest tests:"
    awk 'NF == 3 { printf "%8.1f s  %s\n", $3, $1 }' "$costs" | sort -rn | head -n 12
fi
