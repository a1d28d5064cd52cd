#!/usr/bin/env bash
# A host with one fault is found by that fault: by calls alone, or only when the module is at work.
# Usage: wrong-hosts.sh calls|pair MODULE SWITCH_UNIT HOST_CHECK...
set -u
way=$1 module=$2 switch=$3
program=("${@:4}")
. "$(dirname "$0")/expect.sh"
export WRONG_HOST
tried=0

options() {
    set_unit "$1"
    case $1 in um) kind=metric ;; *) kind=inch ;; esac
    options=(--unit "$kind" --job demo --step pcb --attribute .net=GND --attribute .bit=3)
}

# found STATEMENT...: there are differences, and each is of one of these statements.
found() {
    local expression
    expression=$(printf '|%s' "$@")
    tried=$((tried + 1))
    if [ "$status" -ne 1 ] || ! grep -q '^differs' "$work/output" ||
        grep '^differs' "$work/output" | grep -vE "^differs[^:]*: (${expression#|})"; then
        cat "$work/output" "$work/errors"
        echo "$WRONG_HOST in $OTHER_HOST_UNIT: status $status"
        failed=1
    else
        echo "$WRONG_HOST: $(grep -m 1 '^  done' "$work/output")"
    fi
}

# calls UNIT FAULT STATEMENT...: found by calls alone.
calls() {
    [ "$way" = calls ] || return
    options "$1"
    WRONG_HOST=$2
    check "${options[@]}"
    found "${@:3}"
}

# pair UNIT FAULT STATEMENT...: found only with the module. The calls are judged as well, and differ in
# nothing: they are none of the statements.
pair() {
    [ "$way" = pair ] || return
    options "$1"
    WRONG_HOST=$2
    check "${options[@]}" --module "$module" \
        --switch-unit "\"$switch\" \"$OTHER_HOST_UNIT\" um mil"
    found "${@:3}"
}

calls mil 'symbol names' 'setSymbolUIData\(name, [01]\) (multi|div)' 'setSymbolUIData\(\) gives a stored name again'
calls um 'identity' 'setSymbolUIData\(name, [01]\) (multi|div)'
calls mil 'bounds' 'isNumValueLegal\(\) shows a refusal in exactly one'
calls um 'late box' 'isSymbolValueLegal\(\) shows a refusal in exactly one'
calls um 'bound' 'getUnitJudgeDouble\(\) is a bound'
calls um 'unit string' 'getUnitString\(\) is "MM"'
calls mil 'line edit' 'changeunit\(\) never reports'
calls mil 'edit identity' 'changeunit\(\) .* multiplies the number by 25.4' 'ZTLineEdit writes and takes a decimal point'
calls mil 'factor' 'changeunit\(\) .* multiplies the number by 25.4' 'ZTLineEdit writes and takes a decimal point'
calls mil 'comma' 'ZTLineEdit writes and takes a decimal point'
calls mil 'choice' 'Widget_SymbolSelection signals a choice once'

pair mil 'pictures' 'Qt of the host reads the pictures'
pair mil 'messages' 'module and host work through each step without a crash'
pair um 'dialogs' 'the dialog and each window of the host appear'
pair mil 'told once' 'a refused entry opens exactly one box'
pair um 'active window' 'each entry changes the record' 'Widget_SymbolSelection shows and sends sizes in the unit'
pair mil 'warnings' 'Qt has nothing to complain'
pair mil 'unit' 'lengths and symbols are shown and taken' 'a refused entry opens'
pair mil 'unloading' 'module and host work through each step without a crash'
[ "$way" = calls ] || grep -q '^  done: the program ends:' "$work/output" ||
    { echo "not after unloading"; failed=1; }

# Without a fault the same program finds none.
WRONG_HOST=
options mil
expect 0 12 "${options[@]}"
echo "$tried wrong hosts"
exit $failed
