#!/usr/bin/env bash
# Closing the main window ends the program, whatever other windows are open; a session that expects
# no box is not asked about changes; and only errors are on the terminal. Usage: closing.sh WORKBENCH MODULES JOBS
set -u
workbench=$1 modules=$2 jobs=$3
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT
cd "$dir" || exit 1

cat >close.session <<'END'
click m_pOpenPopViewTB
click m_pAddFeatureTB
click m_pPadTB
type m_pSymbolTextLE r10
key m_pSymbolTextLE Enter
expect state m_pSecondView visible=true
click m_pDeleteFeatTB
canvas click 17500 5400
expect state m_pWorkbench windowModified=true
close m_pWorkbench
END
# run OPTION...: the program must end by itself.
run() {
    timeout 20 "$workbench" --modules "$modules" --job "$jobs" --play close.session "$@" 2>err
    status=$?
    [ $status -eq 0 ] || { echo "exit status $status"; cat err; exit 1; }
    grep -vE '^(QStandardPaths|This plugin)' err >lines
}

run
[ ! -s lines ] || { echo "not quiet:"; head -n 3 lines; exit 1; }
run --log
grep -q '^canvastoolstrip' lines || { echo "--log: no debug lines"; exit 1; }
