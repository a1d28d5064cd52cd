#!/usr/bin/env bash
# Who includes whom: every arrow between two rooms of the tree is in the list of arrows, and the
# list has none that nothing uses.
# Usage: check.sh TREE ARROWS WIDGET_HEADERS   (the folder of Qt's headers of widgets)
set -u
arrows=$(realpath "$2")
cd "$1" || exit 1
mapfile -t files < <(find . \( -path ./build -o -path ./.git \) -prune -o \
    \( -name '*.h' -o -name '*.cpp' \) -printf '%P\n' | sort)
{
    # Names first: an arrow may come before what its names mean.
    sed -n 's/#.*//; / = /s/^/rule /p' "$arrows"
    sed 's/#.*//; /^ *$/d; / = /d; s/^/rule /' "$arrows"
    printf 'file %s\n' "${files[@]}"
    ls "$3" | sed 's/^/widget /'
    grep -HoE '^ *# *include *[<"][^">]+' "${files[@]}" | sed -E 's/^([^:]*): *# *include *./include \1 /'
} | awk '
function starts(path, prefix) { return substr(path, 1, length(prefix)) == prefix }

# The room of a file: that of the longest prefix in the list.
function roomOf(path,    prefix, best) {
    best = ""
    for (prefix in room)
        if (starts(path, prefix) && length(prefix) > length(best)) best = prefix
    return best == "" ? "" : room[best]
}

# The file of the tree that an include means; empty: none. Files in the same folder come first.
function fileOf(from, name,    folder, base, list, count, i, found) {
    folder = from
    sub(/[^\/]*$/, "", folder)
    if ((folder name) in isFile) return folder name
    base = name
    sub(/.*\//, "", base)
    count = split(called[base], list, " ")
    found = ""
    for (i = 1; i <= count; ++i) {
        if (list[i] == name) return name
        if (substr("/" list[i], length(list[i]) + 1 - length(name)) == "/" name) {
            if (found != "" && roomOf(found) != roomOf(list[i]))
                fail(from " includes " name ", which may be " found " or " list[i])
            found = list[i]
        }
    }
    return found
}

function isAllowed(from, path,    tokens, count, i, prefixes, n, k) {
    count = split(allowed[from], tokens, " ")
    for (i = 1; i <= count; ++i) {
        if (tokens[i] == "*") return 1
        n = split(tokens[i] in meaning ? meaning[tokens[i]] : tokens[i], prefixes, " ")
        for (k = 1; k <= n; ++k)
            if (starts(path, prefixes[k])) return isUsed[from, tokens[i]] = 1
    }
    return 0
}

function fail(text) { print text; failed = 1 }

$1 == "rule" && $3 == "=" {
    for (i = 4; i <= NF; ++i) { room[$i] = $2; meaning[$2] = meaning[$2] " " $i }
    next
}
$1 == "rule" && $3 == "->" {
    if (!($2 in meaning)) room[$2] = $2
    for (i = 4; i <= NF; ++i) allowed[$2] = allowed[$2] " " $i
    next
}
$1 == "rule" { fail("not understood: " $0); next }
$1 == "file" {
    isFile[$2]
    base = $2
    sub(/.*\//, "", base)
    called[base] = called[base] " " $2
    if (roomOf($2) == "") fail($2 " is in no room of the list")
    next
}
$1 == "widget" { isWidget[$2]; next }
$1 == "include" {
    from = roomOf($2)
    target = fileOf($2, $3)
    name = $3
    sub(/^QtWidgets\//, "", name)
    if (target != "") {
        if (roomOf(target) != from && !isAllowed(from, target))
            fail($2 " includes " target ": no arrow from " from)
    } else if (name in isWidget && !isAllowed(from, "QtWidgets")) {
        fail($2 " includes " $3 ": no widgets in " from)
    }
    ++count
}
END {
    if (count == 0) fail("no includes were found")
    for (from in allowed) {
        n = split(allowed[from], tokens, " ")
        for (i = 1; i <= n; ++i)
            if (tokens[i] != "*" && !((from, tokens[i]) in isUsed))
                fail("nothing uses the arrow from " from " to " tokens[i])
    }
    print count + 0 " includes"
    exit failed
}'
