#!/usr/bin/env bash
# The stand-ins keep what the module relies on in each of their units, and left untried is only what
# takes a switch of the unit or modules that receive.
# Usage: stand-ins.sh JOB_FILE MODULE HOST_CHECK...
set -u
export CANVAS_HOST_JOBS=$1
module=$2
program=("${@:3}")
. "$(dirname "$0")/expect.sh"
job=(--job demo --step pcb)
attributes=(--attribute .smd= --attribute .net=GND)

for units in mil=inch inch=inch um=metric mm=metric; do
    export CANVAS_HOST_UNIT="${units%=*}"
    expect 0 4 --unit "${units#*=}" "${job[@]}" "${attributes[@]}" --module "$module"
    echo "$CANVAS_HOST_UNIT: $last"
done

# Told of the wrong unit, of no job, of nothing.
expect 1 4 --unit inch "${job[@]}" "${attributes[@]}" --module "$module"
expect 0 19 --unit metric
expect 0 12 --unit metric "${job[@]}" "${attributes[@]}" --verbose
grep -qxF 'trying: getUnitJudgeDouble(10000)' "$work/output" || { echo "no steps"; failed=1; }
expect 1 10 --unit metric "${job[@]}" "${attributes[@]}" --module "$module.missing"
grep -q '^differs: the module can be opened' "$work/output" || { echo "a missing module is not told"; failed=1; }
expect 2 0
expect 2 0 --unit mm
expect 2 0 --unit metric more
expect 2 0 --units metric
expect 2 0 --unit metric --attribute .smd
expect 2 0 --unit metric --attribute .smd=
expect 2 0 --unit metric --switch-unit true
expect 2 0 --unit
grep -q "Missing value after '--unit'" "$work/errors" || { echo "a mistake is not explained"; failed=1; }
expect 0 0 --help
exit $failed
