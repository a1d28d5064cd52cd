#!/usr/bin/env bash
# Plays a session with the program of the zip and with that of Linux. Trace and board are the same but
# for line ends and addresses. Pictures have the same size and no difference that can be seen, within
# letters either.
# Usage: session.sh UNPACKED EMULATOR LINUX_BUILD SESSION   (a file among the samples)
set -u
unpacked=$1 emulator=$2 linux=$3 session=$4
here=$(cd "$(dirname "$0")" && pwd)
samples=share/canvas-tool-strip/samples
export SOURCE_DATE_EPOCH=1700000000
# The same letters on both, which the sizes of most controls follow from.
export QT_FONT_DPI=96 FONTCONFIG_FILE=$here/fonts.conf
unset WINEPATH
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
failed=0

# play NAME FOLDER PROGRAM...: leaves what the program writes in the folder NAME.
play() {
    local name=$1 file=$2/$samples/$session
    shift 2
    mkdir "$out/$name"
    cd "$out/$name" || exit 1
    # Before the picture, what fades has time to vanish.
    { cat "$file"; echo "wait 500"; } >played.session
    "$@" --play played.session --trace trace --export "$board" --screenshot window.png --exit >log 2>&1 &&
        return
    echo "$name: status $?"
    cat log
    exit 1
}
# The first walk is exported as a manufacturer gets it, the others as the board files are.
board=board.json
[ "$session" = first-steps.session ] && board=board.gbr
play linux "$linux" "$linux/bin/canvas-workbench"
play windows "$unpacked" "$emulator" "$unpacked/bin/canvas-workbench"

cd "$out" || exit 1
sed -i -E 's/\r$//; s/"extra":[0-9]{6,}/"extra":"address"/' {linux,windows}/{trace,$board}
for file in trace $board; do
    [ -s linux/$file ] || { echo "no $file"; failed=1; }
    diff linux/$file windows/$file | cut -c 1-200
    [ "${PIPESTATUS[0]}" -eq 0 ] || failed=1
done
if ! compare -metric AE -fuzz 3% {linux,windows}/window.png null: 2>pixels; then
    echo "window.png differs: $(cat pixels) pixels"
    failed=1
fi
exit $failed
