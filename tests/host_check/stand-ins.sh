#!/bin/sh
# The stand-ins keep the interface in each of their units, and nothing is left untried except what
# throws. Usage: stand-ins.sh HOST_CHECK JOB_FILE
set -u
program=$1
export CANVAS_HOST_JOBS="$2"
failed=0
errors=$(mktemp)
trap 'rm -f "$errors"' EXIT

# expect STATUS UNTRIED OPTION...: the exit status, and how many lines say what was not tried.
expect() {
    status=$1 untried=$2
    shift 2
    output=$("$program" "$@" 2>"$errors")
    got=$?
    lines=$(printf '%s\n' "$output" | grep -c '^not tried: ')
    if [ "$got" -ne "$status" ] || [ "$lines" -ne "$untried" ]; then
        printf '%s\n' "$output"
        cat "$errors"
        echo "host_check $* in $CANVAS_HOST_UNIT: status $got, $lines not tried"
        failed=1
    fi
    last=$(printf '%s\n' "$output" | tail -n 1)
}

for units in mil=inch inch=inch um=metric mm=metric; do
    export CANVAS_HOST_UNIT="${units%=*}"
    expect 0 1 --unit "${units#*=}" --job demo --step pcb
    printf '%s\n' "$output" | grep -q '^not tried: getUnitString() that throws' || failed=1
    echo "$CANVAS_HOST_UNIT: $last"
    case $last in
    [1-9][0-9][0-9][0-9]*" tried, 0 different, 1 not tried") ;;
    *) failed=1 ;;
    esac
done

# Told of the wrong unit, of no job, of nothing.
expect 1 1 --unit inch --job demo --step pcb
expect 0 7 --unit metric
expect 0 7 --unit metric --verbose
printf '%s\n' "$output" | grep -qxF 'trying: getUnitData(10)' || { echo "no steps"; failed=1; }
expect 2 0
expect 2 0 --unit mm
expect 2 0 --unit metric more
expect 2 0 --units metric
expect 2 0 --unit
grep -q "Missing value after '--unit'" "$errors" || { echo "a mistake is not explained"; failed=1; }
expect 0 0 --help
exit $failed
