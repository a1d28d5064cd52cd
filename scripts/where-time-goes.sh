#!/usr/bin/env bash
# Where the time of the last build and of the tests goes: by kind of step, and the longest of each.
# Usage: scripts/where-time-goes.sh [PRESET]   (steps run side by side: the sums are of all cores)
set -eu
cd "$(dirname "$0")/.."
build=build/${1:-release}

# The log of the steps that the build still has.
steps_log() {
    awk -F '\t' 'NR == FNR { sub(/: [^:]*$/, ""); exists[$0]; next } NF == 5 && $4 in exists' \
        <(ninja -C "$build" -t targets all) "$build/.ninja_log"
}

# Columns of the log: start, end (milliseconds), time stamp, output, hash of the command.
steps_log | awk -F '\t' '{ took[$4] = ($2 - $1) / 1000 }
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
    }' | sort -rn
echo "The longest steps:"
steps_log | awk -F '\t' '{ printf "%8.1f s  %s\n", ($2 - $1) / 1000, $4 }' |
    sort -rn | head -n 8
costs=$build/Testing/Temporary/CTestCostData.txt
if [ -f "$costs" ]; then
    echo "The longest tests:"
    awk 'NF == 3 { printf "%8.1f s  %s\n", $3, $1 }' "$costs" | sort -rn | head -n 12
fi
