#!/usr/bin/env bash
# Builds everything and runs the tests. Usage: ./test.sh [--full] [PRESET] [ctest options]
# PRESET is release (the default), debug, asan or coverage. The daily run has every test of what the
# programs do; --full adds what guards the borders: other compilers, self-contained headers,
# packages, a longer random run, and the longest tables of tests with all their rows.
set -u
. "$(dirname "$0")/scripts/prepare.sh"

purposes=(build run bench test)
chosen=(--label-exclude border)
preset=release
while :; do
    case "${1:-}" in
    --full)
        purposes+=(border)
        chosen=()
        ;;
    release | debug | asan | coverage) preset=$1 ;;
    *) break ;;
    esac
    shift
done
need_packages "${purposes[@]}"
build "$preset" all benchmarks
# Three per core: those on a display mostly wait for it. Those that compute count as two.
ctest --test-dir "build/$preset" --output-on-failure --parallel "$((3 * $(nproc)))" \
    "${chosen[@]}" "$@"
