#!/usr/bin/env bash
# No file names a folder of the machine that it was made on.
# Usage: folders.sh UNPACKED FOLDER...
set -u
cd "$1" || exit 1
shift
found=0
for folder in "$HOME" "$@"; do
    [ ${#folder} -gt 1 ] || continue
    while read -r file; do
        # As text of one byte a letter, or of two.
        for width in s l; do
            if strings -a -e $width "$file" | grep -F -m 1 -- "$folder/"; then
                echo "$file: names $folder"
                found=1
            fi
        done
    done < <(find . -type f)
done
[ "$(find . -name '*.dll' | wc -l)" -gt 10 ] || { echo "nothing to search"; exit 1; }
exit $found
