#!/usr/bin/env bash
# Pictures of the window and of every page of the dialog, in each language, scale, palette and font
# size, for review. They go to build/state-pictures and are not committed.
set -u
. "$(dirname "$0")/prepare.sh"

need_packages build run
build release workbench_all
out=build/state-pictures
rm -rf "$out"
mkdir -p "$out"

# picture TAG SCALE OPTION...: plays the session with these options.
picture() {
    local tag=$1 scale=$2
    shift 2
    sed "s#OUT#$out/$tag#" scripts/state-pictures.session >"$out/session"
    QT_SCALE_FACTOR=$scale scripts/with-display.sh \
        build/release/bin/canvas-workbench --job workbench/samples/board.json --play "$out/session" \
        --exit "$@" >"$out/log" 2>&1 || {
        cat "$out/log" >&2
        exit 1
    }
}

for language in en zh_CN; do
    for scale in 1 1.25 1.5 2; do
        picture "$language-$scale" "$scale" --language "$language"
        picture "$language-$scale-dark" "$scale" --language "$language" --dark
    done
    for points in 14 20; do
        picture "$language-${points}pt" 1 --language "$language" --font-size "$points"
    done
    # Laptop screens.
    for screen in 1366x768 1024x700; do
        SCREEN=$screen picture "$language-$screen" 1 --language "$language"
    done
    SCREEN=1920x1080 picture "$language-1920x1080" 2 --language "$language"
done
rm -f "$out/session" "$out/log"
echo "Pictures: $root/$out"
