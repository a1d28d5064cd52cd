#!/usr/bin/env bash
# Builds everything and runs all tests. Usage: ./test.sh [PRESET] [ctest options]
# PRESET is release (the default), debug, asan or coverage.
set -u
. "$(dirname "$0")/scripts/prepare.sh"

preset=release
case "${1:-}" in
release | debug | asan | coverage)
    preset=$1
    shift
    ;;
esac
need_packages build run bench test border
build "$preset" all benchmarks
ctest --test-dir "build/$preset" --output-on-failure --parallel "$(nproc)" "$@"
