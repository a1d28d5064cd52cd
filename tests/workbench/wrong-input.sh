#!/usr/bin/env bash
# Wrong input ends the program with status 2 and one line that names file, line and reason.
# Usage: wrong-input.sh WORKBENCH
set -u
workbench=$1
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT
failed=0

# expect TEXT ARGUMENT...: the one line on standard error contains TEXT.
expect() {
    local text=$1 status lines
    shift
    "$workbench" "$@" --exit >"$dir/out" 2>"$dir/err"
    status=$?
    grep -vE '^(QStandardPaths|This plugin)' "$dir/err" >"$dir/lines"
    lines=$(wc -l <"$dir/lines")
    if [ $status -ne 2 ] || [ "$lines" -ne 1 ] || ! grep -qF -- "$text" "$dir/lines"; then
        echo "$*: status $status, expected 2 and one line with: $text"
        cat "$dir/lines"
        failed=1
    fi
}

printf '{ "format": 1,\n  "jobs": [\n' >"$dir/open.json"
printf '{ "format": 1,\n  "jobs": [ { "name": 7 } ] }\n' >"$dir/name.json"
printf 'click m_pMarkTB\njump\n' >"$dir/jump.session"

expect "Unknown option 'bogus'" --bogus
expect "foot" --unit foot
expect "$dir/absent.json" --job "$dir/absent.json"
expect "$dir/open.json:3: " --job "$dir/open.json"
expect "$dir/name.json:2: " --job "$dir/name.json"
expect "$dir/absent.session" --play "$dir/absent.session"
expect "$dir/jump.session:2: unknown step \"jump\"" --play "$dir/jump.session"
expect "$dir/no/trace" --trace "$dir/no/trace"
expect "$dir/no/Canvas_Viewer.so: no such file" --modules "$dir/no"
expect "$dir/no/picture.png" --screenshot "$dir/no/picture.png"
exit $failed
