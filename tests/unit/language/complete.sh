#!/usr/bin/env bash
# The committed translations hold every text of the sources, each translated.
# Usage: complete.sh SOURCE LUPDATE
set -u
cd "$1" || exit 1
lupdate=$2
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT
failed=0

# check FILE FOLDER...: gathers the texts into a copy; none may be new, unfinished or gone.
check() {
    local file=$1
    shift
    cp "translations/$file" "$dir/$file"
    "$lupdate" -silent -locations none -I . -I workbench "$@" \
        -ts "$dir/$file" >/dev/null 2>&1
    if grep -B3 -E 'type="(unfinished|vanished|obsolete)"' "$dir/$file" | grep '<source>'; then
        echo "$file: not translated, or gone from the sources"
        failed=1
    fi
}

check Canvas_Tool_Strip_zh_CN.ts addfeature dimensions plugin toolbar
check workbench_zh_CN.ts workbench host
exit $failed
