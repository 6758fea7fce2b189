#!/usr/bin/env bash
# Takes the pictures of the README anew. Without a display too: they come from Qt's offscreen platform.
set -euo pipefail
# shellcheck source=tools/common.sh
. "$(dirname "$0")/../tools/common.sh"
take_options "$@"
[ ${#arguments[@]} -eq 0 ] || { echo "Usage: docs/pictures.sh [--build FOLDER]" >&2; exit 2; }
cd "$source_folder"
reserve release
tools require "${needed_to_build[@]}"
compile release ovl-pictures ovl-images

bin=$build/release/bin
site=$build/readme
mkdir -p "$site/ORB"
"$bin/ovl-images" "$site" V1400R12
printf '[General]\nVersion=V1400\nRelease=R12\n' > "$site/ORB/OVL Software.conf"
"$bin/ovl-pictures" --folder "$site" --store "$site" "$site/pictures"
cp "$site/pictures/light/remote_access.png" docs/remote.png
cp "$site/pictures/light/register_ibm.png" docs/register.png
cp "$site/pictures/dark/tab4_exception_report.png" docs/exceptions.png
cp "$site/pictures/camera.png" docs/camera.png
