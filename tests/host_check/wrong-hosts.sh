#!/bin/sh
# A host with one fault is found by that fault alone. Usage: wrong-hosts.sh PROGRAM JOB_FILE
set -u
program=$1
export CANVAS_HOST_JOBS="$2"
found=0
tried=0
errors=$(mktemp)
trap 'rm -f "$errors"' EXIT

# expect FAULT NAME: each difference of the host with this fault begins with that name.
expect() {
    tried=$((tried + 1))
    differences=$(WRONG_HOST="$1" "$program" --unit inch --job demo --step pcb 2>"$errors")
    status=$?
    differences=$(printf '%s\n' "$differences" | sed -n 's/^differs: //p')
    others=$(printf '%s\n' "$differences" | grep -v "^$2")
    if [ "$status" -eq 1 ] && [ -n "$differences" ] && [ -z "$others" ]; then
        found=$((found + 1))
        printf '%s: %s\n' "$1" "$(printf '%s\n' "$differences" | head -n 1)"
    else
        printf '%s: status %s\n%s\n' "$1" "$status" "$differences"
        cat "$errors"
    fi
}

expect units 'getUnitData('
expect 'symbol names' 'setSymbolUIData('
expect arcs 'identify_symbol(.*arc'
expect bounds 'isNumValueLegal(.*: modal boxes: expected 1, got 2'
expect 'line edit' 'ZTLineEdit of pattern .*: changeunit() emits editingFinished'
expect popups 'Widget_listpopup of .*: is there after closing'
echo "$found of $tried wrong hosts were found"

# Without a fault the same program finds none.
WRONG_HOST='' "$program" --unit inch --job demo --step pcb >"$errors" 2>&1 || {
    cat "$errors"
    echo "a difference without a fault"
    exit 1
}
[ "$found" -eq "$tried" ]
