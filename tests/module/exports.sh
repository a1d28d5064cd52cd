#!/bin/sh
# Prints the names that a library exports, undemangled. Usage: exports.sh LIBRARY
case $1 in
*.dll)
    objdump -p "$1" |
        sed -n '/^\[Ordinal\/Name Pointer\] Table/,/^$/s/^\t.*[] ]\([A-Za-z_][^ ]*\)$/\1/p' ;;
*) nm -D --defined-only "$1" | cut -d' ' -f3- ;;
esac
