#!/usr/bin/env bash
# Makes the Debian package below build/package and checks it. Needs root or sudo only for packages that are missing.
set -euo pipefail
cd "$(dirname "$0")/.."
tools/require g++ cmake ninja-build qt6-base-dev qt6-serialport-dev fonts-dejavu-core debhelper dpkg-dev fakeroot \
  help2man librsvg2-bin lintian appstream desktop-file-utils

version=$(sed -n '1s/.*(\(.*\)).*/\1/p' packaging/debian/changelog)
grep -q "VERSION $version " CMakeLists.txt || { echo "The changelog says $version, CMakeLists.txt does not." >&2; exit 1; }
tree=build/package/ovl-software-$version
rm -rf build/package
mkdir -p "$tree"
git ls-files -z --cached --others --exclude-standard | xargs -0 cp --parents --target-directory "$tree"
cp -r packaging/debian "$tree/debian"

export DEB_BUILD_OPTIONS="${DEB_BUILD_OPTIONS:-noautodbgsym parallel=$(nproc)}"
(cd "$tree" && dpkg-buildpackage --build=binary --no-sign)

packages=(build/package/*.deb)
lintian --fail-on error,warning build/package/*.changes
appstreamcli validate --no-net "$tree"/debian/ovl-software/usr/share/metainfo/*.xml
desktop-file-validate "$tree"/debian/ovl-software/usr/share/applications/*.desktop
printf '%s\n' "${packages[@]}"
