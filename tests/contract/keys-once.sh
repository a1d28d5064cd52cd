#!/usr/bin/env bash
# Each key of the record occurs once in the dialog: where its field is declared. The frame's keys,
# which several of its rules write, occur only in the frame's files.
# Usage: keys-once.sh SOURCE
set -u
cd "$1" || exit 1
frame='features|attributes|polarity|mirror|mirrorRotate|symbolText'
mapfile -t keys < <(sed -nE 's/^inline const QString (\w+)\(.*/\1/p' plugin/RecordKeys.h)
[ "${#keys[@]}" -gt 40 ] || { echo "the keys were not found"; exit 1; }
failed=0
for key in "${keys[@]}"; do
    places=$(grep -rnE "RecordKeys::$key\b" addfeature)
    if [[ $key =~ ^($frame)$ ]]; then
        grep -E '^addfeature/(fields|pages|record)/' <<<"$places" && failed=1
    elif [ "$(grep -c . <<<"$places")" -ne 1 ]; then
        echo "RecordKeys::$key does not occur once:"
        echo "$places"
        failed=1
    fi
done
exit $failed
