#!/usr/bin/env bash
# Nothing differs in a host that differs from the stand-ins in all that the module does not rely on, and
# each row of the table is judged, but those that say otherwise.
# Usage: right-host.sh MODULE SWITCH_UNIT HOST_CHECK...
set -u
module=$1 switch=$2
program=("${@:3}")
. "$(dirname "$0")/expect.sh"
expect 0 0 --list
unjudged=$(grep -c ' Not judged\. ' "$work/output")
for units in mil=inch inch=inch um=metric mm=metric; do
    set_unit "${units%=*}"
    metric=um inch=mil
    [ "${units%=*}" = inch ] && inch=inch
    [ "${units%=*}" = mm ] && metric=mm
    expect 0 "$unjudged" --unit "${units#*=}" --job demo --step pcb --attribute .net=GND \
        --attribute .bit=3 --module "$module" \
        --switch-unit "\"$switch\" \"$OTHER_HOST_UNIT\" $metric $inch"
    echo "${units%=*}: $last"
done
exit $failed
