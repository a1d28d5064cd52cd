#!/usr/bin/env bash
# Builds the module and the workbench, and starts the workbench with the module in it. Options go
# to the workbench (--help lists them). Without a display the sample session is played on a
# virtual one, and leaves a picture and the message trace.
set -u
. "$(dirname "$0")/scripts/prepare.sh"

need_packages build run
build release workbench_all

workbench=build/release/bin/canvas-workbench
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec "$workbench" --job workbench/samples/board.json "$@"
fi
out=build/release/run
mkdir -p "$out"
scripts/with-display.sh "$workbench" --job workbench/samples/board.json \
    --play workbench/samples/first-steps.session \
    --screenshot "$out/workbench.png" --trace "$out/trace.jsonl" --exit "$@" || exit $?
echo "No display: the sample session was played on a virtual one."
echo "Picture: $root/$out/workbench.png"
echo "Message trace: $root/$out/trace.jsonl"
