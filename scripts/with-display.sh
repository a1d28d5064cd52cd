#!/usr/bin/env bash
# Runs a command under a virtual display with a window manager. Usage: with-display.sh COMMAND...
exec xvfb-run -a -s '-screen 0 1920x1200x24' bash -c '
    openbox & manager=$!
    "$@"; status=$?
    kill $manager
    exit $status' bash "$@"
