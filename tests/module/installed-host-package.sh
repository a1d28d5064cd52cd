#!/bin/sh
# Installs the packages, then builds the module a second time against what was installed, as an
# integrator would, has the host checked, and builds a sibling.
# Usage: installed-host-package.sh SOURCE BUILD WORK BUILD_TYPE SANITIZE [EMULATOR]
set -eu
source=$1 build=$2 work=$3 type=$4 sanitize=$5 emulator=${6:-}

rm -rf "$work"
mkdir -p "$work"
cmake --install "$build" --prefix "$work/prefix" >"$work/install.log"
package=$(find "$work/prefix" -name CanvasHostConfig.cmake)
[ -n "$package" ] || { echo "no CanvasHostConfig.cmake was installed"; exit 1; }

cmake -S "$source" -B "$work/module" -G Ninja -DCMAKE_BUILD_TYPE="$type" \
    -DCTS_SANITIZE="$sanitize" -DCanvasHost_DIR="$(dirname "$package")" -DCTS_CHECK_HOST=ON \
    -DCMAKE_UNITY_BUILD=ON -DCMAKE_UNITY_BUILD_BATCH_SIZE=20 \
    >"$work/configure.log" || { cat "$work/configure.log"; exit 1; }
cmake --build "$work/module" --target Canvas_Tool_Strip host_check >"$work/build.log" ||
    { cat "$work/build.log"; exit 1; }
# For Windows: the libraries of the host are in bin/, the module in modules/.
export WINEPATH="$work/prefix/bin;$work/module/modules;${WINEPATH:-}"
module=$(ls "$work"/module/modules/Canvas_Tool_Strip.*)
$emulator "$work/module/bin/host_check" --unit inch --module "$module" \
    >"$work/check.log" 2>&1 || { cat "$work/check.log"; exit 1; }

# The headers came from the installed package, not from the tree.
for header in cam_api.h ui_api.h common_widgets.h QTpluginsManger4CAM.h PluginMetaData.h; do
    ninja -C "$work/module" -t deps | grep -qF "$work/prefix/include/CanvasHost/$header" ||
        { echo "$header was not taken from the installed package"; exit 1; }
done
if ninja -C "$work/module" -t deps | grep -F "$source/host/"; then
    echo "the module reached into the tree's host/"
    exit 1
fi
"$source/tests/module/exported-names.sh" "$module"

flags=
[ "$sanitize" = ON ] && flags=-fsanitize=address,undefined
cmake -S "$source/tests/module/sibling" -B "$work/sibling" -G Ninja -DCMAKE_CXX_FLAGS="$flags" \
    -DCMAKE_PREFIX_PATH="$work/prefix" >"$work/configure.log" || { cat "$work/configure.log"; exit 1; }
cmake --build "$work/sibling" >"$work/build.log" || { cat "$work/build.log"; exit 1; }
if ninja -C "$work/sibling" -t deps | grep -E "$source/(plugin|toolbar|host)/"; then
    echo "the sibling reached into the tree"
    exit 1
fi
sibling=$(find "$work/sibling" -name 'libSibling.so' -o -name 'libSibling.dll')
if "$source/tests/module/exports.sh" "$sibling" | c++filt | grep -E 'MessageCodes|staticMetaObject'; then
    echo "the sibling exports its copy of the protocol"
    exit 1
fi
