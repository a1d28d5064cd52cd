#!/usr/bin/env bash
# Runs each figure once, briefly. The table in the page of figures has the same rows; if not,
# ./bench.sh --markdown updates it. Usage: compare-names.sh PAGE BENCHMARKS...
set -u
table=$("${@:2}" --quick) || exit 1
# Without the sizes, of which a quick run takes smaller ones.
names() {
    awk -F '|' '/^## /{ other = $0 != "## Table" } !other && NF == 8 { print $2 }' |
        sed -E 's/: [0-9]+( features)?, floor [0-9]+//'
}
[ "$(names <<<"$table" | wc -l)" -gt 20 ] || { echo "no table"; exit 1; }
diff <(names <"$1") <(names <<<"$table")
