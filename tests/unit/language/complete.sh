#!/usr/bin/env bash
# The committed translations of a program have every text of its folders, each translated.
# Usage: complete.sh SOURCE LUPDATE PROGRAM FOLDER...
set -u
cd "$1" || exit 1
lupdate=$2 program=$3
shift 3
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT
failed=0

files=(translations/"$program"_*.ts)
[ -e "${files[0]}" ] || { echo "no translation of $program"; exit 1; }
for file in "${files[@]}"; do
    # Collects the texts into a copy; none may be new, unfinished or gone.
    copy=$dir/${file##*/}
    cp "$file" "$copy"
    # English has its texts in the sources, all but the plurals.
    kind=()
    [[ $file == *_en.ts ]] && kind=(-pluralonly)
    "$lupdate" "${kind[@]}" -silent -locations none -I . -I workbench "$@" \
        -ts "$copy" >/dev/null 2>&1
    if grep -B3 -E 'type="(unfinished|vanished|obsolete)"' "$copy" | grep '<source>'; then
        echo "$file: not translated, or gone from the sources"
        failed=1
    fi
done
exit $failed
