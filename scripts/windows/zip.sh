# Sourced by windows.sh: what is given away for Windows. One zip to run the workbench from, and one for
# those who build a host. The same build gives the same zips, dated by SOURCE_DATE_EPOCH.

version=$(sed -nE 's/^project\(.* VERSION ([0-9.]+) .*/\1/p' CMakeLists.txt)
user_zip=canvas-tool-strip-$version-windows
dev_zip=$user_zip-dev
packed=$out/packed

# What comes from elsewhere, and the installed package that has the same sources and their licences.
others='
qtbase5-dev                        bin/Qt5Core.dll bin/Qt5Gui.dll bin/Qt5Widgets.dll
qtbase5-dev                        plugins/platforms/qwindows.dll plugins/platforms/qoffscreen.dll
qtbase5-dev                        plugins/imageformats/qjpeg.dll
libqt5svg5-dev                     bin/Qt5Svg.dll plugins/imageformats/qsvg.dll
libgoogle-glog-dev                 bin/libglog.dll
libzint-dev                        bin/libzint.dll
libpolyclipping-dev                bin/libpolyclipping.dll
gcc-mingw-w64-x86-64-posix-runtime bin/libstdc++-6.dll bin/libgcc_s_seh-1.dll
mingw-w64-x86-64-dev               bin/libwinpthread-1.dll
qttranslations5-l10n               translations/qtbase_zh_CN.qm
'

# install_parts COMPONENT...: what the tree installs, into the working folder
install_parts() {
    local part
    for part in "$@"; do
        cmake --install "$root/$out" --strip --component "$part" --prefix . >>../install.log ||
            fail "installing $part failed, see $out/packed/install.log"
    done
}

# add_licences PACKAGE FILE...: its licences, and a line for each file.
add_licences() {
    local source texts name=$1 text built
    source=$(source_of "$name")
    built=$(dpkg-query -W -f='${Built-Using}' "$name")
    texts=/usr/share/doc/$name/copyright
    cp "$texts" "licences/$source.txt" || fail "no licences of $name"
    for text in $(grep -oE '/usr/share/common-licenses/[A-Za-z0-9.-]*[A-Za-z0-9]' "$texts" | sort -u); do
        cp -L "$text" licences/common/
    done
    printf "%-34s $source${built:+, built from $built}\n" "${@:2}" >>licences/README.txt
}

# add_others: Qt, the small libraries and the compiler's, with their licences
add_others() {
    local package files file prefix
    mkdir -p licences/common
    cp "$root/packaging/windows/licences.txt" licences/README.txt
    while read -r package files; do
        for file in $files; do
            for prefix in "${prefixes[@]}"; do
                [ -e "$prefix/$file" ] && install -D -m 644 "$prefix/$file" "$file"
            done
            [ -e "$file" ] || fail "$file is in none of ${prefixes[*]}"
        done
        add_licences "$package" $files
    done < <(grep . <<<"$others")
    cp "$root/packaging/windows/qt.conf" bin/
    find bin plugins -name '*.dll' -exec "$compiler-strip" {} +
}

# add_papers README: what tells a reader where to begin
add_papers() {
    sed "s/@version@/$version/" "$root/packaging/windows/$1" >README.txt
    cp "$root/LICENSE" LICENSE.txt
    cp "$root/CHANGELOG.md" .
}

# pack NAME: the folder NAME as a zip
pack() {
    chmod -R u=rwX,go=rX "$1"
    find "$1" -type f -exec touch -d "@$SOURCE_DATE_EPOCH" {} +
    find "$1" -type f | LC_ALL=C sort | TZ=UTC zip -X -q -@ "../$1.zip" || fail "packing $1 failed"
    say "$out/$1.zip: $(stat -c %s "../$1.zip") bytes"
}

make_zips() {
    say "zips"
    rm -rf "$packed" "$out"/canvas-tool-strip-*.zip
    mkdir -p "$packed/$user_zip" "$packed/$dev_zip"
    # Programs have a date within, which the compiler's strip sets.
    local -x SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git -C "$root" log -1 --format=%ct 2>/dev/null ||
        stat -c %Y "$root/CHANGELOG.md")}
    (cd "$packed/$user_zip" && install_parts module workbench host && add_others &&
        add_papers README.txt) || exit 1
    (cd "$packed/$dev_zip" && install_parts module host development check &&
        add_papers README-dev.txt && mkdir docs && cp "$root"/docs/*.md docs &&
        cp -r "$root/examples" . &&
        (cd "$root" && cp --parents cmake/mingw-w64.cmake scripts/windows/wine.sh "$OLDPWD")) || exit 1
    (cd "$packed" && pack "$user_zip" && pack "$dev_zip") || exit 1
}
