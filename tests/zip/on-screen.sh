#!/usr/bin/env bash
# On a screen, with Windows' plug-in: started as by a double click the program opens its window and
# keeps the settings where Windows keeps them; a session reaches into the file dialogs, and the
# documentation is found.
# Usage: on-screen.sh UNPACKED EMULATOR   (on a display, with a Wine folder of its own)
set -u
unpacked=$1 emulator=$2
unset WINEPATH QT_FORCE_STDERR_LOGGING
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
cd "$out" || exit 1
program=$unpacked/bin/canvas-workbench
settings=AppData/Local/canvas-tool-strip/workbench.ini
rm -f "$WINEPREFIX"/drive_c/users/*/"$settings"

"$emulator" "$program" 2>errors &
window=$(timeout 60 xdotool search --sync --onlyvisible --name '^demo / pcb - Workbench$' | tail -n 1)
[ -n "$window" ] || { cat errors; echo "no window"; exit 1; }
sleep 1
xdotool windowactivate --sync "$window" key --clearmodifiers alt+F4
wait $! || { cat errors; echo "status $?"; exit 1; }
[ ! -s errors ] || { cat errors; echo "not quiet"; exit 1; }
ls "$WINEPREFIX"/drive_c/users/*/"$settings" >/dev/null || exit 1

cat >dialog.session <<'END'
menu m_pFileMenu m_pSaveBoardAct
type fileNameEdit saved
expect state fileNameEdit text=saved
key fileNameEdit Escape
menu m_pHelpMenu m_pDocumentationAct
expect state m_pPagesTE visible=true
END
QT_FORCE_STDERR_LOGGING=1 "$emulator" "$program" --play dialog.session --screenshot window.png \
    --exit >log 2>&1 || { grep -v '^wine: ' log; echo "status $?"; exit 1; }
[ -s window.png ] || { echo "no picture"; exit 1; }
! grep 'QTextBrowser: No document' log || exit 1
