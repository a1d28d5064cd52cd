#!/usr/bin/env bash
# Compares the page of figures with one whose table was just written: the text is the same, and so
# are the names of the figures. If not, ./bench.sh --markdown updates the table.
set -u
text() { awk '/^## /{ table = $0 == "## Table" } !table' "$1"; }
# Without the sizes that are tried, of which a quick run takes smaller ones.
names() {
    awk -F '|' '/^## /{ table = $0 == "## Table" } table && NF == 8 { print $2 }' "$1" |
        sed -E "s/: [0-9]+ (to|against) [0-9]+//; s/: [0-9]+ features, floor [0-9]+//"
}
[ "$(names "$1" | wc -l)" -gt 20 ] || { echo "$1 has no table"; exit 1; }
diff <(text "$1") <(text "$2") && diff <(names "$1") <(names "$2")
