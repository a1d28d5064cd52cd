#!/bin/sh
# Installs the packages, builds examples/minimal_host against them, runs it and compares what it
# prints. Usage: minimal-host.sh SOURCE BUILD WORK BUILD_TYPE SANITIZE [EMULATOR]
# BUILD may be a folder that holds what is installed already.
set -eu
source=$1 build=$2 work=$3 type=$4 sanitize=$5 emulator=${6:-}
example=$source/examples/minimal_host

lines=$(wc -l <"$example/main.cpp")
[ "$lines" -lt 150 ] || { echo "main.cpp has $lines lines"; exit 1; }

rm -rf "$work"
mkdir -p "$work"
prefix=$build
if [ -e "$build/CMakeCache.txt" ]; then
    prefix=$work/prefix
    cmake --install "$build" --prefix "$prefix" >"$work/install.log"
fi
flags=
[ "$sanitize" = ON ] && flags=-fsanitize=address,undefined
cmake -S "$example" -B "$work/build" -G Ninja -DCMAKE_BUILD_TYPE="$type" \
    -DCMAKE_CXX_FLAGS="-Wall -Wextra -Werror $flags" -DCMAKE_PREFIX_PATH="$prefix" \
    >"$work/configure.log" || { cat "$work/configure.log"; exit 1; }
cmake --build "$work/build" >"$work/build.log" || { cat "$work/build.log"; exit 1; }
if ninja -C "$work/build" -t deps | grep -E "$source/(host|plugin|toolbar)/"; then
    echo "the example reached into the tree"
    exit 1
fi

# For Windows: the libraries of the host are in bin/.
export WINEPATH="$prefix/bin;${WINEPATH:-}"
$emulator "$work/build/minimal_host" --quit >"$work/printed" 2>"$work/errors" ||
    { echo "status $?"; cat "$work/printed" "$work/errors"; exit 1; }
diff "$source/tests/examples/minimal-host.expected" "$work/printed"
