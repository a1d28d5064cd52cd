#!/usr/bin/env bash
# The list in docs/integrating.md is the table, and the places that the table names are in the sources.
# Usage: table.sh SOURCE HOST_CHECK...
set -u
source=$1
program=("${@:2}")
. "$(dirname "$0")/expect.sh"
expect 0 0 --list
sed -n '/<!-- host_check --list -->/,/<!-- end -->/p' "$source/docs/integrating.md" | sed '1d;$d' |
    diff - "$work/output" || { echo "docs/integrating.md: put in what host_check --list prints"; failed=1; }
grep -oE '`[a-z]+/[A-Za-z_/.]+: [A-Za-z_~]+`' "$work/output" | tr -d '`' | sort -u >"$work/places"
[ -s "$work/places" ] || { echo "no places"; failed=1; }
while IFS=': ' read -r file function; do
    grep -qE "(^|[^A-Za-z_])$function\(" "$source/$file" || {
        echo "$file: no function $function, on which the table of host_check relies"
        failed=1
    }
done <"$work/places"
exit $failed
