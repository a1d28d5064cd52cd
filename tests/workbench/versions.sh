#!/usr/bin/env bash
# All that tells the version tells the same one.
# Usage: versions.sh SOURCE BUILD VERSION WORKBENCH PROGRAM   (WORKBENCH runs the file PROGRAM)
set -u
source=$1 build=$2 version=$3 workbench=$4 program=$5
failed=0

# tells WHERE WANTED TOLD
tells() {
    [ "$2" = "$3" ] && return
    echo "$1: \"$3\", expected \"$2\""
    failed=1
}
tells CHANGELOG.md "## $version" "$(grep -m 1 '^## ' "$source/CHANGELOG.md")"
tells --version "workbench $version" "$("$workbench" --version)"
for package in plugin/CanvasToolStrip host/CanvasHost; do
    tells $package "set(PACKAGE_VERSION \"$version\")" \
        "$(grep -m 1 '^set(PACKAGE_VERSION ' "$build/${package}ConfigVersion.cmake")"
done
case $program in
*.exe)
    # Two bytes a letter: the texts that Windows shows of a file.
    for key in FileVersion ProductVersion; do
        tells "$key of the program" "$version" \
            "$(strings -a -e l "$program" | grep -x -A 1 $key | tail -n 1)"
    done
    ;;
*)
    tells "Debian's changelog" "canvas-tool-strip ($version) " \
        "$(grep -m 1 -o '^canvas.*) ' "$build/packaging/changelog")"
    tells "Debian packages" "SET(CPACK_PACKAGE_VERSION \"$version\")" \
        "$(grep -i '^set(CPACK_PACKAGE_VERSION ' "$build/CPackConfig.cmake" | sed 's/^set/SET/')"
    ;;
esac
exit $failed
