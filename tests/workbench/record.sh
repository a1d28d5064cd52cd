#!/usr/bin/env bash
# Plays a session, with its own expectations, while it is recorded; plays the recording, and compares the
# two message traces.
# Usage: record.sh WORKBENCH MODULES JOBS SESSION
set -u
workbench=$1 modules=$2 jobs=$3 session=$4
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
cd "$out" || exit 1

# play SESSION TRACE OPTION...
play() {
    local file=$1 trace=$2
    shift 2
    "$workbench" --modules "$modules" --job "$jobs" --play "$file" --trace "$trace" "$@" --exit \
        >log 2>&1 || {
        echo "$file: exit status $?"
        cat log recorded.session
        exit 1
    }
    # A box that no step expects is reported.
    ! grep -E '\.session:[0-9]+: ' log || exit 1
    # Times and addresses differ from run to run.
    sed -i -E 's/"time":"[^"]*",//; s/"extra":[0-9]{6,}/"extra":"address"/' "$trace"
}

play "$session" played.jsonl --record recorded.session
play recorded.session replayed.jsonl
[ -s played.jsonl ] || { echo "no trace"; exit 1; }
diff played.jsonl replayed.jsonl
