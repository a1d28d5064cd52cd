#!/usr/bin/env bash
# Measures every figure of the module next to its floor, and prints one table; docs/performance.md
# says how to read it, and --markdown replaces the table there.
# Usage: ./bench.sh [--json FILE] [--markdown] [--only TEXT] [--repetitions N]
set -u
options=() previous=
for option in "$@"; do
    # A relative name is relative to the caller's directory.
    if [ "$previous" = --json ]; then
        option=$(realpath -m "$option")
    elif [[ $option = --json=* ]]; then
        option=--json=$(realpath -m "${option#--json=}")
    elif [ "$option" = --markdown ]; then
        option=--markdown=docs/performance.md
    fi
    options+=("$option")
    previous=$option
done
. "$(dirname "$0")/scripts/prepare.sh"

need_packages build run bench
build release benchmarks >&2
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 QT_LOGGING_RULES=
exec build/release/bin/benchmarks "${options[@]}"
