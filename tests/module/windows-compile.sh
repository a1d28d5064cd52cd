#!/usr/bin/env bash
# Every source file of the module compiles for Windows: with Debian's cross compiler against Qt's
# headers, without linking. Status 77 where the compiler is missing.
# Usage: windows-compile.sh SOURCE BUILD QT_HEADERS
set -u
source=$1 build=$2 qt=$3
compiler=$(command -v x86_64-w64-mingw32-g++-posix) || { echo "no cross compiler"; exit 77; }
cd "$source" || exit 1

# Of this system's headers only the log's: the C library's are those of Windows.
other=$(mktemp -d)
trap 'rm -rf "$other"' EXIT
for name in glog gflags; do
    [ -e "/usr/include/$name" ] && ln -s "/usr/include/$name" "$other/$name"
done
options=(-std=c++17 -fsyntax-only -Wall -Wextra -DCANVAS_TOOL_STRIP_BUILD -DGOOGLE_GLOG_DLL_DECL=
    -DGLOG_NO_ABBREVIATED_SEVERITIES -I. -Iplugin -I"$build/dimensions")
for folder in . plugin_manager cam_api ui_api common_widgets; do
    options+=(-I"host/$folder")
done
for folder in . QtCore QtGui QtWidgets; do
    options+=(-isystem "$qt/$folder")
done
options+=(-isystem "$other")

files=(plugin/*.cpp toolbar/*.cpp addfeature/*.cpp addfeature/pages/*.cpp dimensions/*.cpp)
echo "${#files[@]} files"
printf '%s\0' "${files[@]}" |
    xargs -0 -P "$(nproc)" -I FILE "$compiler" "${options[@]}" FILE
