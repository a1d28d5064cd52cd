#!/usr/bin/env bash
# Pictures of the window and of every page of the dialog, in each language, scale, palette and font
# size, to be looked at. They go to build/state-pictures and are not committed.
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
        build/release/bin/workbench --job workbench/samples/board.json --play "$out/session" \
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
    picture "$language-14pt" 1 --language "$language" --font-size 14
done
rm -f "$out/session" "$out/log"
echo "Pictures: $root/$out"
