#!/usr/bin/env bash
# No file names a folder of the machine that it was made on.
# Usage: folders.sh UNPACKED FOLDER...
set -u
cd "$1" || exit 1
shift
patterns=()
for folder in "$HOME" "$@"; do
    [ ${#folder} -gt 1 ] && patterns+=(-e "$folder/" -e "${folder//\//\\}\\")
done
searched=0 found=0
while read -r file; do
    searched=$((searched + 1))
    # Texts of one byte a letter, and of two.
    if { strings -a "$file"; strings -a -e l "$file"; } | grep -F -m 3 "${patterns[@]}"; then
        echo "is in $file"
        found=1
    fi
done < <(find . -type f)
[ $searched -gt 50 ] || { echo "$searched files only"; exit 1; }
exit $found
