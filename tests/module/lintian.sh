#!/bin/sh
# The Debian packages pass Debian's checks, and the workbench can be listed in menus and app stores.
# Usage: lintian.sh PACKAGES   (the folder in which packages.sh left them)
set -eu
cd "$1"
lintian --allow-root --fail-on error,warning ./*.deb
desktop-file-validate installed/usr/share/applications/canvas-workbench.desktop
appstreamcli validate --no-net --no-color \
    installed/usr/share/metainfo/canvas-workbench.metainfo.xml
