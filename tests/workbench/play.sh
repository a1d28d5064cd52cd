#!/usr/bin/env bash
# Plays a session without a screen and compares the trace (sender, receiver, code and extra word,
# delivered or not) with the list NAME.expected beside this script.
# Usage: play.sh WORKBENCH MODULES SAMPLES HERE NAME
set -u
workbench=$1 modules=$2 samples=$3 here=$4 name=$5
session=$samples/$name.session
[ -f "$session" ] || session=$here/$name.session
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
cd "$out" || exit 1

"$workbench" --modules "$modules" --job "$samples/board.json" --play "$session" \
    --trace trace.jsonl --screenshot picture.png --exit >log 2>&1 || {
    echo "exit status $?"
    grep -v '^canvastoolstrip' log
    exit 1
}
[ -s picture.png ] || { echo "no picture"; exit 1; }
# An address differs from run to run.
sed -E 's/.*"sender":"([^"]*)","receiver":"([^"]*)","code":(-?[0-9]+),.*"extra":(-?[0-9]+),"delivered":(true|false).*/\1 \2 \3 \4 \5/;
        s/ [0-9]{6,} (true|false)$/ address \1/' trace.jsonl >actual
diff "$here/$name.expected" actual
