#!/usr/bin/env bash
# Wrong input ends the program with status 2, a step that cannot be done with status 1, each with
# one line giving file, line and reason.
# Usage: wrong-input.sh WORKBENCH MODULES
set -u
workbench=$1 modules=$2
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT
failed=0

# expect STATUS TEXT ARGUMENT...: the one line on standard error contains TEXT.
expect() {
    local wanted=$1 text=$2 status lines
    shift 2
    "$workbench" "$@" --exit >"$dir/out" 2>"$dir/err"
    status=$?
    grep -vE '^(QStandardPaths|This plugin)' "$dir/err" >"$dir/lines"
    lines=$(wc -l <"$dir/lines")
    if [ $status -ne "$wanted" ] || [ "$lines" -ne 1 ] || ! grep -qF -- "$text" "$dir/lines"; then
        echo "$*: status $status, expected $wanted and one line with: $text"
        cat "$dir/lines"
        failed=1
    fi
}

printf '{ "format": 1,\n  "jobs": [\n' >"$dir/open.json"
printf '{ "format": 1,\n  "jobs": [ { "name": 7 } ] }\n' >"$dir/name.json"
printf '\377\376' >"$dir/binary.json"
cat >"$dir/odd.json" <<'END'
{ "format": 1, "job": "a", "step": "b", "outline": [], "features": [
  { "kind": "pad", "symbol": "odd", "points": [[1, 1]], "polarity": "positive", "mirror": false,
    "rotation": 0, "xScale": 1, "yScale": 1, "attributes": {} } ] }
END
printf 'click m_pMarkTB\njump\n' >"$dir/jump.session"
printf '\n\nclick m_p\377\n' >"$dir/binary.session"
printf 'send 20001811 extra=77\n' >"$dir/address.session"
printf 'click m_pMarkTB\nclick m_pMarkTC\n' >"$dir/absent-widget.session"
printf 'click m_pMoveFeatureTB\nexpect message 20000207 extra=1\n' >"$dir/extra.session"
printf 'expect state m_pMarkTB checked=true\n' >"$dir/state.session"
printf 'click m_pAddFeatureTB\nclick m_pPadTB\ntype m_pSymbolTextLE x\nkey m_pSymbolTextLE Enter\nbox accept title=x\n' \
    >"$dir/box.session"
mkdir "$dir/modules"
cp "$modules"/Canvas_Viewer.* "$dir/modules/"
suffix=$(ls "$dir/modules" | sed 's/.*\.//')
echo "no library" >"$dir/modules/Canvas_JobTree.$suffix"
mkdir "$dir/swapped"
cp "$modules"/Canvas_* "$dir/swapped/"
cp "$modules/Canvas_JobTree.$suffix" "$dir/swapped/Canvas_Viewer.$suffix"

expect 2 "Unknown option 'bogus'; see --help" --bogus
expect 2 "Unknown option 'bogus'" -bogus
expect 2 "$dir: " "$dir"
expect 2 "unexpected argument \"more\"" "$dir/open.json" more
expect 2 "$dir/open.json:3: " "$dir/open.json"
expect 2 "$dir/state.session: this is a session, not a board" "$dir/state.session"
expect 2 "$dir/open.json: another one is named" "$dir/open.json" --job "$dir/name.json"
expect 2 "$dir/open.json: this is a job file, not a session" --play "$dir/open.json"
expect 2 "foot" --unit foot
expect 2 "$dir/absent.json" --job "$dir/absent.json"
chinese=$(printf '\346\235\277')
expect 2 "$dir/$chinese.json: " --job "$dir/$chinese.json"
expect 2 "$dir:" --job "$dir"
expect 2 "$dir/binary.json:1: " --job "$dir/binary.json"
expect 2 "$dir/open.json:3: " --job "$dir/open.json"
expect 2 "$dir/name.json:2: " --job "$dir/name.json"
expect 2 "$dir/absent.session" --play "$dir/absent.session"
expect 2 "$dir: " --play "$dir"
expect 2 "$dir/jump.session:2: unknown step \"jump\"" --play "$dir/jump.session"
expect 2 "$dir/binary.session:3: the text is not UTF-8" --play "$dir/binary.session"
expect 2 "$dir/address.session:1: message 20001811 takes" --play "$dir/address.session"
expect 2 "$dir/no/trace" --trace "$dir/no/trace"
expect 2 "$dir/no/Canvas_Viewer.$suffix: no such file" --modules "$dir/no"
expect 2 "$dir/modules/Canvas_JobTree.$suffix: " --modules "$dir/modules"
expect 2 "Canvas_Viewer.dll: is not a canvas for this window" --modules "$dir/swapped"
expect 2 "$dir/no/picture.png" --screenshot "$dir/no/picture.png"
expect 0 "\"odd\"" --board "$dir/odd.json" --export "$dir/odd.gbr"
expect 1 "$dir/absent-widget.session:2: no widget \"m_pMarkTC\"; there is m_pMarkTB" \
    --play "$dir/absent-widget.session"
expect 1 "$dir/extra.session:2: expected message 20000207 with extra=1, got message 20000207 with extra=0" \
    --play "$dir/extra.session"
expect 1 "$dir/state.session:1: expected checked=\"true\" of \"m_pMarkTB\", got \"false\"" \
    --play "$dir/state.session"
expect 1 "$dir/box.session:5: expected a box of the title \"x\", got \"Illegal Input\"" \
    --play "$dir/box.session"
expect 2 "$dir/no/a.session" --record "$dir/no/a.session"
expect 2 "cannot record over the session that is played" \
    --play "$dir/state.session" --record "$dir/state.session"
grep -q expect "$dir/state.session" || {
    echo "the session was recorded over"
    failed=1
}

# Without a display: one line, and no core dump.
for platform in xcb nonsense; do
    DISPLAY=:4711 QT_QPA_PLATFORM=$platform expect 2 "workbench: no window can be shown: " \
        --modules "$modules"
done

"$workbench" --version 2>"$dir/err" | grep -qxE 'workbench [0-9]+(\.[0-9]+)+' || {
    echo "--version: no version"
    failed=1
}

"$workbench" --help >"$dir/help" 2>"$dir/err" && grep -q -- "--play <file>" "$dir/help" &&
    grep -q -- "--record <file>" "$dir/help" || {
    echo "--help: no help, or a wrong exit status"
    failed=1
}
exit $failed
