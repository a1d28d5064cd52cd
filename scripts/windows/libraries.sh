# Sourced by windows.sh: the libraries that a Windows build stands on. They are cross-compiled once,
# from the sources of the very Debian packages that the build for Linux uses, and kept in a folder
# of their own, each under the name of its source package and version.

cache=${CTS_WINDOWS_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/canvas-tool-strip/windows}
compiler=x86_64-w64-mingw32

# source_of PACKAGE: what the installed PACKAGE was built from, such as zint_2.11.1-1
source_of() {
    dpkg-query -W -f='${source:Package}_${source:Version}' "$1"
}

# once WORK STEP COMMAND...: runs COMMAND in WORK, its output into a log, unless it has been done.
once() {
    local work=$1 step=$2
    shift 2
    [ -e "$work/done/$step" ] && return
    say "${work##*/}: $step"
    mkdir -p "$work/done"
    if ! (cd "$work" && "$@") >"$work/$step.log" 2>&1 </dev/null; then
        tail -n 30 "$work/$step.log" >&2
        fail "${work##*/}: $step failed; all that it said is in $work/$step.log"
    fi
    touch "$work/done/$step"
}

# own_apt APT-COMMAND...: apt with source entries, made from this machine's own, in files that only
# this script uses.
own_apt() {
    local program=$1
    shift
    "$program" -o Dir::Etc::SourceList=/dev/null -o Dir::Etc::SourceParts="$cache/apt/entries" \
        -o Dir::State::Lists="$cache/apt/lists" -o Dir::Cache="$cache/apt" \
        -o APT::Sandbox::User=root "$@"
}

# update_sources: once per run; an entry of another archive that has no sources does no harm.
update_sources() {
    [ -n "${sources_updated:-}" ] && return
    sources_updated=1
    say "lists of Debian's source packages"
    local entries=$cache/apt/entries file
    rm -rf "$entries"
    mkdir -p "$entries" "$cache/apt/lists/partial" "$cache/apt/archives/partial"
    for file in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
        [ -e "$file" ] && sed -nE 's/^deb(-src)?\s/deb-src /p' "$file" >"$entries/${file##*/}.list"
    done
    for file in /etc/apt/sources.list.d/*.sources; do
        [ -e "$file" ] && sed -E 's/^Types:.*/Types: deb-src/' "$file" >"$entries/${file##*/}"
    done
    own_apt apt-get update >"$cache/apt/update.log" 2>&1 </dev/null ||
        say "some lists are missing, see $cache/apt/update.log"
}

# fetch SOURCE_VERSION: unpacks it into work/SOURCE_VERSION/source.
fetch() {
    local work=$cache/work/$1 name=${1%%_*} version=${1#*_}
    [ -e "$work/done/fetch" ] && return
    update_sources
    if ! own_apt apt-cache showsrc "$name" 2>/dev/null | grep -qxF "Version: $version"; then
        fail "the sources of $name $version, which this machine's packages are built from, are not to" \
            "be had. Offered:" $(own_apt apt-cache showsrc "$name" | awk '/^Version:/ { print $2 }')
    fi
    once "$work" fetch unpack "$name" "$version"
}

unpack() {
    rm -rf source ./*.dsc
    own_apt apt-get source --download-only --only-source "$1=$2" && dpkg-source -x ./*.dsc source
}

# finish PREFIX WORK [WAY]: what is built is kept, with the way it was built; what it was built from goes.
finish() {
    echo "${3:-}" >"$1/complete"
    rm -rf "$2"
}

# The compiler whose threads are the C++ library's, under the names that Qt's build calls.
link_compiler() {
    local tool
    mkdir -p "$cache/compiler"
    for tool in gcc g++ cpp gcc-ar gcc-nm gcc-ranlib; do
        ln -sf "$(command -v "$compiler-$tool-posix" || command -v "$compiler-$tool")" \
            "$cache/compiler/$compiler-$tool"
    done
}

# --- Qt ---------------------------------------------------------------------------------------

# In this order: the make file of src/ would build tools for the host first.
qt_folders=(corelib/qtzlib.pro 3rdparty/pcre2 corelib winmain testlib
    3rdparty/libpng 3rdparty/libjpeg 3rdparty/harfbuzz-ng 3rdparty/freetype gui
    platformsupport widgets
    plugins/platforms/windows plugins/platforms/offscreen plugins/styles/windowsvista
    plugins/imageformats/jpeg)

qt_configure() {
    cd source &&
        sed -i -E 's/^(QMAKE_CFLAGS_OPTIMIZE(_FULL)? *=) -O[23]$/\1 -O1/' mkspecs/common/gcc-base.conf &&
        MAKEFLAGS=-j$(nproc) ./configure -prefix "$qt" -opensource -confirm-license \
            -xplatform win32-g++ -device-option "CROSS_COMPILE=$compiler-" \
            -external-hostbindir /usr/lib/qt5/bin -release -shared \
            -nomake examples -nomake tests -nomake tools -no-opengl -no-vulkan -no-dbus -no-openssl \
            -no-icu -no-feature-sql -no-feature-direct2d -no-feature-tabletevent \
            -no-avx -no-avx2 -no-avx512 -qt-zlib -qt-pcre -qt-libpng -qt-libjpeg -qt-freetype \
            -qt-harfbuzz -qt-doubleconversion
}

# A part of mkspecs/ is among the include folders of those who use Qt.
qt_mkspecs() {
    mkdir -p "$qt/mkspecs" && cp -r source/mkspecs/common source/mkspecs/win32-g++ "$qt/mkspecs"
}

# qt_make FOLDER-OR-PROJECT, in src/ of Qt
qt_make() {
    local folder=$1 project=
    [[ $1 == *.pro ]] && folder=${1%/*} project=${1##*/}
    cd "source/src/$folder" &&
        "$qmake" $project -o "Makefile.${project:-all}" &&
        make -f "Makefile.${project:-all}" -j"$(nproc)" &&
        make -f "Makefile.${project:-all}" install
}

qt_svg() {
    cd source && "$qmake" && make -j"$(nproc)" sub-src && make -C src install
}

# Qt's build and CMake look for the tools beside the libraries; Debian's, of the same version, run on
# this machine. Qt's own texts in other languages are the same for all.
link_qt_tools() {
    local tool
    mkdir -p "$qt/bin"
    for tool in moc qmake qvkgen rcc uic; do
        ln -sf "/usr/lib/qt5/bin/$tool" "$qt/bin/$tool"
    done
    ln -sfn "$(/usr/lib/qt5/bin/qmake -query QT_INSTALL_TRANSLATIONS)" "$qt/translations"
}

# What the compiler's programs need at run time.
link_runtime() {
    local library
    for library in libstdc++-6 libgcc_s_seh-1 libwinpthread-1; do
        ln -sf "$("$compiler-g++-posix" -print-file-name="$library.dll")" "$qt/bin/$library.dll"
    done
}

build_qt() {
    local base svg folder qmake
    base=$(source_of qtbase5-dev) svg=$(source_of libqt5svg5-dev)
    qt=$cache/$base
    prefixes+=("$qt")
    [ -e "$qt/complete" ] && [ -e "$qt/$svg" ] && return
    local work=$cache/work/$base
    fetch "$base"
    fetch "$svg"
    qmake=$work/source/bin/qmake
    link_qt_tools
    once "$work" configure qt_configure
    once "$work" mkspecs qt_mkspecs
    for folder in "${qt_folders[@]}"; do
        once "$work" "${folder//\//-}" qt_make "$folder"
    done
    once "$cache/work/$svg" build qt_svg
    touch "$qt/$svg"
    finish "$qt" "$work"
    rm -rf "$cache/work/$svg"
}

# --- The small ones ---------------------------------------------------------------------------

# cmake_library PACKAGE FOLDER OPTION...: a library that CMake builds, in that folder of its sources,
# and builds anew when it is to be built in another way.
cmake_library() {
    local name work way
    name=$(source_of "$1") work=$cache/work/$(source_of "$1")
    way="${*:2} $(cksum <"$root/cmake/mingw-w64.cmake")"
    prefixes+=("$cache/$name")
    [ "$(cat "$cache/$name/complete" 2>/dev/null)" = "$way" ] && return
    rm -rf "${cache:?}/$name"
    fetch "$name"
    once "$work" build cmake_install "$cache/$name" "${@:2}"
    finish "$cache/$name" "$work" "$way"
}

cmake_install() {
    cmake -S "source/$2" -B build -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_TOOLCHAIN_FILE="$root/cmake/mingw-w64.cmake" -DCMAKE_INSTALL_PREFIX="$1" "${@:3}" &&
        cmake --build build && cmake --install build
}

# build_libraries: sets prefixes, the folders in which they are installed.
build_libraries() {
    prefixes=()
    mkdir -p "$cache"
    link_compiler
    PATH=$cache/compiler:$PATH build_qt
    link_runtime
    cmake_library libgoogle-glog-dev . -DBUILD_TESTING=OFF -DWITH_GFLAGS=OFF -DWITH_GTEST=OFF \
        -DWITH_UNWIND=OFF
    cmake_library libzint-dev . -DZINT_USE_PNG=OFF -DZINT_USE_QT=OFF
    cmake_library libpolyclipping-dev cpp
    cmake_library libbenchmark-dev . -DGIT_VERSION="$(dpkg-query -W -f='${Version}' libbenchmark-dev)" \
        -DBENCHMARK_ENABLE_TESTING=OFF -DBENCHMARK_ENABLE_WERROR=OFF -DBENCHMARK_INSTALL_DOCS=OFF
}
