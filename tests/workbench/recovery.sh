#!/usr/bin/env bash
# Kills a session with edits at random moments, and recovers: each time, only edits of the last two seconds are
# missing, and what was kept can be read. A run that ends in order leaves nothing.
# Usage: recovery.sh WORKBENCH MODULES JOBS KILLS [SLOW_DISK]
# SLOW_DISK is a library to preload, with which the disk takes its time.
set -u
workbench=$1 modules=$2 jobs=$3 kills=$4 slow_disk=${5:-}
lanes=4
dir=$(mktemp -d)
# Only what a lane has started itself is still there when the test is interrupted.
trap 'kill $(jobs -p) 2>/dev/null; rm -rf "$dir"' EXIT
cd "$dir" || exit 1
export TMPDIR=$dir/temporary
mkdir "$TMPDIR"

# One pad after the other, far from each other in time and place.
{
    printf '%s\n' 'click m_pAddFeatureTB' 'click m_pPadTB' 'type m_pSymbolTextLE r10' \
        'key m_pSymbolTextLE Enter'
    for i in $(seq 400); do
        echo "canvas click $((600 + i % 25 * 760)) $((600 + i / 25 * 760))"
        echo 'wait 5'
    done
} >edits.session
for job in demo mine; do
    printf '%s\n' 'box accept "title=Recover Changes"' \
        "expect state m_pWorkbench \"title=$job / pcb* - Workbench\"" >$job.session
done

# play NAME OPTION...: what the program says goes to NAME.log. It has a process group of its
# own, which is killed: where it is emulated, it is not alone.
play() {
    local name=$1
    shift
    exec setsid "$workbench" --modules "$modules" --job "$jobs" --settings "$name.ini" --recovery "$@" \
        >>"$name.log" 2>&1
}
fail() { echo "$1: $2"; grep -vE '^(QStandardPaths|This plugin)' "$1.log"; exit 1; }
pads() { grep -c '"symbol":"r10"' "$1"; }
edits() { cat "$1" 2>/dev/null | grep -c '^canvas click'; }

# once NAME: a kill at a random moment, and the recovery.
once() {
    local name=$1 pid sure made kept
    play "$name" --play edits.session --record "$name.recorded" --exit &
    pid=$!
    until [ "$(edits "$name.recorded")" -gt 1 ]; do
        kill -0 "$pid" || fail "$name" "it has ended"
        sleep 0.05
    done
    sleep "$((RANDOM % 2)).$((RANDOM % 900 + 100))"
    # A line is recorded before the click is made, so that the last one may not have been.
    sure=$(($(edits "$name.recorded") - 1))
    sleep 2
    kill -9 -- "-$pid"
    wait "$pid" 2>/dev/null
    made=$(edits "$name.recorded")
    [ -d "$name.ini.recovery" ] || fail "$name" "nothing was kept"
    [ "$name" != kill0 ] || cp -r "$name.ini.recovery" hand.ini.recovery
    (play "$name" --play demo.session --export "$name.json" --exit) || fail "$name" "status $?"
    [ ! -e "$name.ini.recovery" ] || fail "$name" "files are left"
    kept=$(($(pads "$name.json") - $(cat pads)))
    echo "$name: $made edits, $((made - kept)) lost"
    [ "$kept" -ge "$sure" ] || fail "$name" "$sure edits were two seconds old"
    [ "$kept" -le "$made" ] || fail "$name" "more than was drawn"
}

(play first --export first.json --exit) || fail first "status $?"
pads first.json >pads
lane() {
    for ((i = $1; i < kills; i += lanes)); do
        once "kill$i"
    done
}

# other: what was drawn in the job of another file is recovered in that job.
other() {
    local pid kept
    sed 's/"name": "demo"/"name": "mine"/' "$jobs" >mine.json
    jobs=mine.json play other --play edits.session --record other.recorded --exit &
    pid=$!
    until [ "$(edits other.recorded)" -gt 5 ]; do
        kill -0 "$pid" || fail other "it has ended"
        sleep 0.05
    done
    sleep 2
    kill -9 -- "-$pid"
    wait "$pid" 2>/dev/null
    kept=$(pads other.ini.recovery/0/*.kept)
    echo 'expect state m_pHostJobCMB current=mine' >>mine.session
    (play other --play mine.session --export other.json --exit) || fail other "status $?"
    [ "$(pads other.json)" = "$kept" ] || fail other "not all is recovered"
    [ ! -e other.ini.recovery ] || fail other "files are left"
}

other &
running=($!)
for lane in $(seq 0 $((lanes - 1))); do
    lane "$lane" &
    running+=($!)
done
if [ -n "$slow_disk" ]; then
    LD_PRELOAD=$slow_disk once slow &
    running+=($!)
fi
status=0
for lane in "${running[@]}"; do
    wait "$lane" || status=1
done

# Where no session is played the offer waits for the user, and so does a second program's start.
rm -f hand.ini.recovery/*.lock
setsid "$workbench" --modules "$modules" --job "$jobs" --settings hand.ini >hand.log 2>&1 &
pid=$!
for _ in $(seq 600); do
    [ ! -e hand.ini.recovery/0.lock ] || break
    sleep 0.1
done
sleep 0.5
[ -e hand.ini.recovery/0.lock ] || fail hand "nothing is offered"
! grep -q 'answered the box' hand.log || fail hand "the offer was answered"
[ -e hand.ini.recovery/0/0.kept ] || [ -e hand.ini.recovery/0/1.kept ] || fail hand "it is gone"
kill -- "-$pid"
wait "$pid" 2>/dev/null
# Where no other folder is named, Qt keeps one for what runs, and so does Wine.
left=$(ls -A "$TMPDIR" | grep -vE '^(runtime|wine)-')
[ -z "$left" ] || fail hand "killed, the program leaves $left"
exit $status
