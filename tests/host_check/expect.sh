# Sourced: runs host_check. The arguments of the script are the program, with what emulates it.

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=0

# set_unit TEXT: of the hosts here, which read it from a file.
export OTHER_HOST_UNIT="$work/unit"
set_unit() {
    printf '%s' "$1" >"$OTHER_HOST_UNIT"
}

# check OPTION...: what it prints is in $work/output, with line ends as here.
check() {
    "${program[@]}" "$@" >"$work/raw" 2>"$work/errors"
    status=$?
    tr -d '\r' <"$work/raw" >"$work/output"
    untried=$(grep -c '^not tried' "$work/output")
    last=$(tail -n 1 "$work/output")
}

# expect STATUS UNTRIED OPTION...: the exit status, and how many lines say what was not tried.
expect() {
    local wanted=$1 lines=$2
    shift 2
    check "$@"
    if [ "$status" -ne "$wanted" ] || [ "$untried" -ne "$lines" ]; then
        cat "$work/output" "$work/errors"
        echo "host_check $*: status $status, $untried not tried"
        failed=1
    fi
}
