#!/usr/bin/env bash
# A session does the same whatever the user chose before, and changes no choice of theirs.
# Usage: choices.sh WORKBENCH MODULES
set -u
workbench=$1 modules=$2
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT
cd "$dir" || exit 1

printf '[choices]\nunit=mm\nlanguage=zh_CN\nsnap=true\ngrid=250\n' >settings.ini
cat >defaults.session <<'END'
expect state m_pHostUnitCMB current=mil
expect state m_pHostLanguageCMB current=English
expect state m_pSnapTB checked=false
expect state m_pGridStepLE "text=25.00 mil"
choose m_pHostUnitCMB inch
click m_pSnapTB
END
"$workbench" --modules "$modules" --settings settings.ini --play defaults.session --exit 2>err || {
    cat err
    exit 1
}
sed -n '/\[choices\]/,/^$/p' settings.ini | tr -d '\r' | sort | diff - <(printf '%s\n' \
    '[choices]' grid=250 language=zh_CN snap=true unit=mm)
