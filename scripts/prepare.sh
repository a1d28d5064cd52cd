# Sourced by run.sh and test.sh: the packages and the build.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root" || exit 1

# need_packages PURPOSE...: installs what is missing for these purposes, or says what to install.
need_packages() {
    local purposes missing=() name
    purposes=$(printf '%s|' "$@")
    while read -r name; do
        dpkg-query -W -f='${Status}' "$name" 2>/dev/null | grep -q 'ok installed' ||
            missing+=("$name")
    done < <(awk -v wanted="^(${purposes%|})$" '$1 ~ wanted { print $2 }' debian-packages.txt)
    [ ${#missing[@]} -eq 0 ] && return
    if [ "$(id -u)" -ne 0 ]; then
        echo "Please install first: sudo apt-get install ${missing[*]}" >&2
        exit 1
    fi
    echo "Installing: ${missing[*]}"
    local log
    log=$(mktemp)
    if ! { apt-get update && DEBIAN_FRONTEND=noninteractive apt-get install -y \
            --no-install-recommends "${missing[@]}"; } >"$log" 2>&1 </dev/null; then
        tail -n 20 "$log" >&2
        exit 1
    fi
    rm -f "$log"
}

# is_configured PRESET TARGET...: whether the build knows these targets; one whose package was not
# installed when the build was configured is missing.
is_configured() {
    local rules=build/$1/build.ninja target
    shift
    [ -f "$rules" ] || return 1
    for target in "$@"; do
        grep -q "^build $target:" "$rules" || return 1
    done
}

# build PRESET TARGET...: configures once, then builds what changed.
build() {
    local preset=$1 options=() target targets=() log
    shift
    [ -n "${CI:-}" ] && options+=(-DCTS_WERROR=ON)
    log=$(mktemp)
    if [ -n "${CI:-}" ] || ! is_configured "$preset" "$@"; then
        cmake --preset "$preset" "${options[@]}" >"$log" 2>&1 || {
            cat "$log" >&2
            exit 1
        }
        rm -f "$log"
    fi
    for target in "$@"; do
        targets+=(--target "$target")
    done
    cmake --build "build/$preset" "${targets[@]}" || exit 1
}
