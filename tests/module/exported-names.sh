#!/bin/sh
# What the module exports: two undecorated functions, and the whole class Canvas_Tool_Strip.
# Usage: exported-names.sh LIBRARY
set -u
raw=$("$(dirname "$0")/exports.sh" "$1")
names=$(printf '%s\n' "$raw" | c++filt)
failed=0

expect() {
    printf '%s\n' "$names" | grep -qxF -- "$1" || {
        echo "not exported: $1"
        failed=1
    }
}

for name in GetPluginInstance recMsgFromManager; do
    printf '%s\n' "$raw" | grep -qx "$name" || {
        echo "not exported undecorated: $name"
        failed=1
    }
done

class=Canvas_Tool_Strip
expect "$class::$class(QWidget*)"
expect "$class::~$class()"
expect "vtable for $class"
expect "typeinfo for $class"
case $1 in
*.dll) ;;  # there the name is a part of the type information
*) expect "typeinfo name for $class" ;;
esac
expect "$class::staticMetaObject"
expect "$class::metaObject() const"
expect "$class::recMsgFromManager(PluginMetaData)"
expect "$class::SetAllButtonchecked(bool, QToolButton*)"
expect "$class::isToolButtonChecked(int) const"
expect "$class::get_right_click_zoom_area()"
expect "$class::close_all_Dialogs()"
expect "$class::GetRulerinfo()"
expect "$class::On_AreaZoom_Clicked()"
expect "$class::On_SelectPolyline_Clicked(int)"
expect "$class::on_m_pEqTB_clecked()"
expect "$class::on_m_mark_setting_clicked()"

# The exported function hands its copy to the member of the same name, the only one that takes one.
objdump -d --disassemble=recMsgFromManager "$1" |
    grep -q "call .*<_ZN17${class}17recMsgFromManagerE14PluginMetaData\(@plt\)\?>" || {
    echo "recMsgFromManager does not call $class::recMsgFromManager"
    failed=1
}
takers=$(printf '%s\n' "$names" | grep -F "(PluginMetaData)" | sort)
[ "$takers" = "$class::recMsgFromManager(PluginMetaData)" ] || {
    echo "taking a message: $takers"
    failed=1
}
if printf '%s\n' "$names" | grep -qF "$class::handleMessage("; then
    echo "a second member delivers messages"
    failed=1
fi

others=$(printf '%s\n' "$names" | grep -vE \
    "^(GetPluginInstance|recMsgFromManager|($class::|(vtable|typeinfo|typeinfo name) for $class$|non-virtual thunk to $class::).*)\$")
if [ -n "$others" ]; then
    echo "exported beyond the interface:"
    printf '%s\n' "$others"
    failed=1
fi
exit $failed
