#!/usr/bin/env bash
# Runs a command on a virtual display with a window manager. Usage: with-display.sh COMMAND...
# SCREEN is its size, 1920x1200 unless set. No key repeats, however late its release comes.
exec xvfb-run -a -s "-screen 0 ${SCREEN:-1920x1200}x24 -r" bash -c '
    # A window that opens before the manager runs would not get the focus.
    ready=$(mktemp -u)
    openbox --startup "touch $ready" & manager=$!
    for _ in $(seq 1200); do
        [ -e "$ready" ] && break
        sleep 0.05
    done
    rm -f "$ready"
    "$@"
    status=$?
    kill $manager
    exit $status' bash "$@"
