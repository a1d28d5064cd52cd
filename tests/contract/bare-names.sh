#!/usr/bin/env bash
# Sources use codes, keys and addresses by name: numbers and texts are only in plugin/ and in the
# tests next to this file. What users type and read may contain a number.
# Usage: bare-names.sh SOURCE
set -u
cd "$1" || exit 1
lists=tests/contract
mapfile -t files < <(find . \( -path ./build -o -path ./.git -o -path "./$lists" \) -prune -o \
    \( -name '*.h' -o -name '*.cpp' \) -printf '%P\n' |
    grep -vxE 'plugin/(ExtraWord|MessageCodes|PayloadKeys|RecordKeys|RecordValues)\.h')
[ "${#files[@]}" -gt 0 ] || exit 1

codes=$(sed -n 's/^ *\([0-9]\{8\}\) .*/\1/p' "$lists/messages.txt" | sort -u | paste -sd'|')
# Keys that are also words which a user reads are left out.
keys=$(sed 's/ .*//; /^#/d; s/[()&]/\\&/g' "$lists/record.txt" |
    grep -vxE 'Attributes|Closed|ClockWise|Features|Line|Mirror|Polarity' | paste -sd'|')
failed=0

# none WHAT PATTERN: no source line has it.
none() {
    grep -nE "$2" "${files[@]}" && { echo "$1: see the names in plugin/"; failed=1; }
}
none "a bare code" "^([^\"/]|/[^/]|\"[^\"]*\")*\b($codes)\b"
none "a bare key" "\"(JobName|StepName|$keys)\""
none "an address taken out of or put into the extra word by hand" 'reinterpret_cast<.*(extra|quintptr)'
exit $failed
