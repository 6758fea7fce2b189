#!/usr/bin/env bash
# Takes the pictures of the README anew. Without a display too: they come from Qt's offscreen platform.
set -euo pipefail
cd "$(dirname "$0")/.."
cmake --preset release
cmake --build --preset release --target ovl-pictures ovl-images

site=build/readme
mkdir -p "$site/ORB"
build/release/bin/ovl-images "$site" V1400R12
printf '[General]\nVersion=V1400\nRelease=R12\n' > "$site/ORB/OVL Software.conf"
build/release/bin/ovl-pictures --folder "$site" --store "$site" "$site/pictures"
cp "$site/pictures/light/remote_access.png" docs/remote.png
cp "$site/pictures/light/register_ibm.png" docs/register.png
cp "$site/pictures/dark/tab4_exception_report.png" docs/exceptions.png
