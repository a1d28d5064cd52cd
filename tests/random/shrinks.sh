#!/usr/bin/env bash
# A planted fault (the fill request counts as one) is found and shrunk to a few steps, which fail
# again in the same way. Usage: shrinks.sh RANDOM_USE
set -u
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT

said=$("$1" --seed 2 --steps 20000 --forbid Fill)
[ $? -eq 1 ] || { echo "the planted fault is not found: $said"; exit 1; }
steps=$(sed -n 's/^seed 2, step \([0-9]*\): the forbidden code Fill$/\1/p' <<<"$said")
[ -n "$steps" ] || { echo "no step in: $said"; exit 1; }

"$1" --seed 2 --steps "$steps" --forbid Fill --shrink --to "$dir/numbers"
[ $? -eq 1 ] || { echo "nothing to shrink"; exit 1; }
# Open the dialog, choose the surface, press Fill.
[ "$(wc -l <"$dir/numbers")" -le 3 ] || { echo "still long:"; cat "$dir/numbers"; exit 1; }

"$1" --numbers "$dir/numbers" --forbid Fill --story | tee "$dir/again"
grep -q "the forbidden code Fill$" "$dir/again" || { echo "the shrunk steps do not fail"; exit 1; }
"$1" --numbers "$dir/numbers" || { echo "they fail without the planted fault"; exit 1; }
