#!/usr/bin/env bash
# What check.sh must find in a small tree, and what it must accept. Usage: notices.sh CHECK
set -u
check=$(realpath "$1")
tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT
cd "$tree" || exit 1
mkdir -p low/deep high roof widgets
touch widgets/QLabel low/Low.h low/deep/Deep.h high/Other.h
cat >arrows <<'LIST'
high/     -> base QtWidgets
base      ->
low/deep/ -> base
base = low/Low. # some files of a folder
LIST
printf '#include "low/Low.h"\n#include <Deep.h>\n#include <QLabel>\n' >high/High.h
echo '#include "Low.h"' >low/deep/Deep.cpp

failed=0
# passes WHAT; or finds WHAT TEXT
passes() { "$check" . arrows widgets >log || { echo "$1: refused"; cat log; failed=1; }; }
finds() {
    "$check" . arrows widgets >log && { echo "$1: accepted"; failed=1; }
    grep -qF -- "$2" log || { echo "$1: not \"$2\""; cat log; failed=1; }
}

finds "a folder that no arrow leads to" "high/High.h includes low/deep/Deep.h: no arrow from high/"
sed -i 's/high\/     ->/& low\/deep\//' arrows
passes "what the list allows"

echo '#include "high/High.h"' >low/Low.cpp
finds "an arrow back" "low/Low.cpp includes high/High.h: no arrow from base"
rm low/Low.cpp

echo '  #  include <QtWidgets/QLabel>' >low/Low.cpp
finds "a widget" "low/Low.cpp includes QtWidgets/QLabel: no widgets in base"
rm low/Low.cpp

touch roof/Roof.h
finds "a folder that no line names" "roof/Roof.h is in no room of the list"
echo 'roof/ ->' >>arrows
passes "a room that includes nothing"

echo '#include "roof/Roof.h"' >high/Door.cpp
echo 'high/Door.cpp -> roof/Roof.h' >>arrows
passes "what one file alone may include"
mv high/Door.cpp high/Window.cpp
finds "the same from another file" "high/Window.cpp includes roof/Roof.h: no arrow from high/"
finds "an arrow that nothing uses" "nothing uses the arrow from high/Door.cpp to roof/Roof.h"
mv high/Window.cpp high/Door.cpp

echo 'roof/ > low/' >>arrows
finds "a line that is no arrow" "not understood: rule roof/ > low/"
exit $failed
