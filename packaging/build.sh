#!/usr/bin/env bash
# Makes and checks everything that is given to others, in build/package or in the folder that is named:
#   ovl-software-VERSION.tar.gz                    the sources; unpacked, they build without git
#   ovl-software_*.deb, ovl-software-images_*.deb  the Debian packages
#   ovl-software-VERSION-linux-MACHINE.tar.gz      the programs, to be started from any folder
# Needs root or sudo only for Debian packages that are missing.
set -euo pipefail
out=$(realpath --canonicalize-missing "${1:-$(dirname "$0")/../build/package}")
cd "$(dirname "$0")/.."

# Build-Depends is the only list of what the build needs.
mapfile -t packages < <(sed -n '/^Build-Depends:/,/^[^ ]/s/^ \([a-z0-9.+-]*\).*/\1/p' packaging/debian/control)
tools/require build-essential "${packages[@]/debhelper-compat/debhelper}" lintian appstream desktop-file-utils

echo "== Sources"
if [ $# -eq 0 ]; then
  rm -rf "$out"
elif [ -n "$(ls -A "$out" 2> /dev/null)" ]; then
  echo "build.sh: $out is not empty" >&2
  exit 1
fi
sources=$(packaging/sources.sh "$out")
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
