#!/bin/sh
# Builds a program that uses a host's libraries through examples/host_package; the module can be
# configured with them. Usage: host-package.sh SOURCE HOST WORK SANITIZE [EMULATOR]
# HOST holds the libraries: in lib/, those of Windows in bin/.
set -eu
source=$1 host=$2 work=$3 sanitize=$4 emulator=${5:-}
package=-DCanvasHost_DIR=$source/examples/host_package

# run COMMAND...: prints the command's output if it fails.
run() {
    "$@" >"$work/log" 2>&1 || { cat "$work/log"; exit 1; }
}
rm -rf "$work" "$host/include"
mkdir -p "$work" "$host/include"
cp "$source/plugin/PluginMetaData.h" "$source/host/HostExport.h" "$source/host/cam_api/cam_api.h" \
    "$source/host/ui_api/ui_api.h" "$source/host/common_widgets/common_widgets.h" \
    "$source/host/plugin_manager/QTpluginsManger4CAM.h" "$host/include"
flags=
[ "$sanitize" = ON ] && flags=-fsanitize=address,undefined
set -- -G Ninja -DCMAKE_BUILD_TYPE=None -DCMAKE_CXX_FLAGS="$flags" "$package" \
    -DCANVAS_HOST_ROOT="$host"

run cmake -S "$source/tests/examples/host_user" -B "$work/user" "$@"
run cmake --build "$work/user"
WINEPATH="$host/bin;${WINEPATH:-}"
export WINEPATH
CANVAS_HOST_UNIT=mm $emulator "$work/user/host_user" 2>"$work/log" || { cat "$work/log"; exit 1; }
if CANVAS_HOST_UNIT=mil $emulator "$work/user/host_user" 2>/dev/null; then
    echo "the program does not ask the host"
    exit 1
fi
for library in plugins cam ui widgets; do
    objdump -p "$work/user"/host_user* | grep -qE "(NEEDED|DLL Name:).*host_$library\.(so|dll)" ||
        { echo "host_$library is not used"; exit 1; }
done

run cmake -S "$source" -B "$work/module" "$@" -DCTS_CHECK_HOST=ON
grep -qE "$host/lib/(libhost_widgets.so|host_widgets.lib)" "$work/module/build.ninja"

# A host that is missing from the given place is named.
if cmake -S "$source/tests/examples/host_user" -B "$work/nowhere" -G Ninja "$package" \
    -DCANVAS_HOST_ROOT="$work/nowhere" >"$work/log" 2>&1; then
    echo "configured without a host"
    exit 1
fi
grep -q "is missing: is CANVAS_HOST_ROOT right?" "$work/log" || { cat "$work/log"; exit 1; }
