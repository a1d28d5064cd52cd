#!/usr/bin/env bash
# Every source file of the module compiles for Windows: with Debian's cross compiler against Qt's
# headers, without linking. Status 77 where the compiler is missing.
# Usage: windows-compile.sh INCLUDES SOURCES   (two files, a path a line: what the module is built of)
set -u
compiler=$(command -v x86_64-w64-mingw32-g++-posix) || { echo "no cross compiler"; exit 77; }
mapfile -t includes < <(sort -u "$1")
mapfile -t files < <(grep '\.cpp$' "$2")

# Of this system's headers only the log's: the C library's are those of Windows.
other=$(mktemp -d)
trap 'rm -rf "$other"' EXIT
for name in glog gflags; do
    [ -e "/usr/include/$name" ] && ln -s "/usr/include/$name" "$other/$name"
done
options=(-std=c++17 -fsyntax-only -Wall -Wextra -DCANVAS_TOOL_STRIP_BUILD -DGOOGLE_GLOG_DLL_DECL=
    -DGLOG_NO_ABBREVIATED_SEVERITIES)
for folder in "${includes[@]}"; do
    case $folder in
        /usr/include) ;;
        /usr/*) options+=(-isystem "$folder") ;;
        *) options+=(-I"$folder") ;;
    esac
done
options+=(-isystem "$other")

[ "${#files[@]}" -gt 0 ] || { echo "no files"; exit 1; }
echo "${#files[@]} files"
printf '%s\0' "${files[@]}" |
    xargs -0 -P "$(nproc)" -I FILE "$compiler" "${options[@]}" FILE
