#!/usr/bin/env bash
# Usage: build.sh [FOLDER]
# Makes and checks the files of a release in FOLDER, which must be empty. Without FOLDER, it replaces build/package:
#   ovl-software-VERSION.tar.gz                    the sources; unpacked, they build without git
#   ovl-software_*.deb, ovl-software-images_*.deb  the Debian packages
#   ovl-software-VERSION-linux-MACHINE.tar.gz      the programs; they start from any folder
# It needs root or sudo only to install missing Debian packages.
set -euo pipefail
# shellcheck source=tools/common.sh
. "$(dirname -- "$0")/../tools/common.sh"
read_argument "$build/package" "$@"
out=$(realpath --canonicalize-missing -- "$argument")
name_folder=FOLDER
if [ "$out" = "$build/package" ]; then
  reserve package
elif ! can_write "$out"; then
  fail "$out cannot be written"
elif [ -n "$(ls -A "$out")" ]; then
  fail "$out is not empty"
fi
cd "$source_folder"

# Build-Depends is the only list of what the build needs.
mapfile -t packages < <(sed -n '/^Build-Depends:/,/^[^ ]/s/^ \([a-z0-9.+-]*\).*/\1/p' packaging/debian/control)
tools/require build-essential "${packages[@]/debhelper-compat/debhelper}" lintian appstream desktop-file-utils

echo "== Sources"
[ "$out" != "$build/package" ] || rm -rf "$out"
sources=$(packaging/sources.sh -- "$out")
tree=${sources%.tar.gz}
tar --extract --file "$sources" --directory "$out"
cp -r "$tree/packaging/debian" "$tree/debian"

echo "== Packages"
export DEB_BUILD_OPTIONS="${DEB_BUILD_OPTIONS:-noautodbgsym parallel=$(nproc)}"
(cd "$tree" && dpkg-buildpackage --build=binary --no-sign)
lintian --fail-on error,warning "$out"/*.changes
appstreamcli validate --no-net "$tree"/debian/ovl-software/usr/share/metainfo/*.xml
desktop-file-validate "$tree"/debian/ovl-software/usr/share/applications/*.desktop

echo "== Archive"
(cd "$tree/obj" && cpack)
mv "$tree"/obj/*-linux-*.tar.gz "$out"

printf '%s\n' "$out"/*.deb "$out"/*.tar.gz
