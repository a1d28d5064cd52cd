#!/usr/bin/env bash
# host_check uses no name of the host's libraries that the module does not use.
# Usage: names.sh HOST_CHECK MODULE LIBRARY...
set -u
used() {
    nm --demangle --undefined-only --dynamic "$1" | sed 's/^ *[Uw] //; s/@.*//' | sort -u
}
theirs=$(for library in "${@:3}"; do nm --demangle --defined-only --dynamic "$library"; done |
    cut -d' ' -f3- | sort -u)
common() {
    comm -12 <(used "$1") <(printf '%s\n' "$theirs")
}
count=$(common "$1" | wc -l)
[ "$count" -gt 10 ] || { echo "only $count names"; exit 1; }
more=$(comm -23 <(common "$1") <(common "$2"))
if [ -n "$more" ]; then
    printf 'beyond what the module uses:\n%s\n' "$more"
    exit 1
fi
echo "$count names"
