#!/usr/bin/env bash
# Measures every figure of the module next to its floor, and prints one table; docs/performance.md
# says how to read it, and --markdown replaces the table there.
# Usage: ./bench.sh [--markdown | --only TEXT] [--repetitions N]
set -u
. "$(dirname "$0")/scripts/prepare.sh"

need_packages build run bench
build release benchmarks >&2
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 QT_LOGGING_RULES=
[ "${1:-}" = --markdown ] || exec build/release/bin/benchmarks "$@"
table=$(build/release/bin/benchmarks "${@:2}") || exit 1
page=docs/performance.md
text=$(awk -v table="$table" '/^## /{ inTable = $0 == "## Table"; if (inTable) print $0 "\n\n" table "\n" }
    !inTable' "$page") && printf '%s\n' "$text" >"$page"
