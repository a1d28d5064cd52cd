#!/usr/bin/env bash
# Every source file of the module and of host_check compiles for Windows, and so does a host that
# imports the module's class: with Debian's cross compiler against Qt's headers, without linking.
# Usage: windows-compile.sh INCLUDES SOURCES CHECK HOST WORK
#   INCLUDES and SOURCES are files, one path per line: what the module is built from
#   CHECK is the folder of host_check, HOST the source file of the host
set -u
check=$3 host=$4 work=$5
tool=x86_64-w64-mingw32
mapfile -t includes < <(sort -u "$1")
mapfile -t files < <(grep '\.cpp$' "$2")
[ "${#files[@]}" -gt 0 ] || { echo "no files"; exit 1; }

# Of this system's headers only the log's: the C library's are the Windows ones.
rm -rf "$work"
mkdir -p "$work/include"
for name in glog gflags; do
    [ -e "/usr/include/$name" ] && ln -s "/usr/include/$name" "$work/include/$name"
done
options=(-std=c++17 -Wall -Wextra -Werror -DGOOGLE_GLOG_DLL_DECL= -DGLOG_NO_ABBREVIATED_SEVERITIES)
for folder in "${includes[@]}"; do
    case $folder in
        /usr/include) ;;
        /usr/*) options+=(-isystem "$folder") ;;
        *) options+=(-I"$folder") ;;
    esac
done
options+=(-isystem "$work/include")

"$tool-g++-posix" "${options[@]}" -O1 -c "$host" -o "$work/host.o" || exit 1
"$tool-nm" "$work/host.o" | awk '{ print $NF }' >"$work/names"
class=_ZN17Canvas_Tool_Strip
for name in GetPluginInstance recMsgFromManager "${class}C2EP7QWidget" \
    "${class}16staticMetaObjectE" "${class}17close_all_DialogsEv" "${class}12GetRulerinfoEv"; do
    grep -qx "__imp_$name" "$work/names" || { echo "the host does not import $name"; exit 1; }
done

# compile OPTION... -- FILE...
compile() {
    own=()
    while [ "$1" != -- ]; do
        own+=("$1")
        shift
    done
    shift
    echo "$# files"
    printf '%s\0' "$@" | xargs -0 -P "$(nproc)" -I FILE \
        "$tool-g++-posix" "${options[@]}" "${own[@]}" -fsyntax-only FILE
}
compile -DCANVAS_TOOL_STRIP_BUILD -- "${files[@]}" &&
    compile -DHOST_LIBRARIES='""' -DQT_GUI_LIB -DQT_WIDGETS_LIB -I"$check" -- "$check"/*.cpp "$check"/pair/*.cpp
