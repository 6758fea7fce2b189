#!/usr/bin/env bash
# Prints digests of everything that can be compared between two builds: take.sh PROGRAMS [ACTS [EVENTS]]
# Two builds that print the same do the same. PROGRAMS is the folder of the built programs.
set -euo pipefail
programs=$(cd "$1" && pwd)
tests=$(cd "$(dirname "$0")/../.." && pwd)
place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
cd "$place"
"$programs/ovl-images" .
find V1* -type f -exec sha256sum {} + | sort | sha256sum | sed 's/-$/default images/'
cp "$tests"/stories/*.ovl .
"$programs/ovl-digest" ./*.ovl
for example in backup change_all set_clocks collect_histories compare check_images; do
  "$tests/stories/examples/run.sh" "$programs" "$place" "$example" | sed "s/^/$example: /"
done
for version in V1400:R12 V1400:R1 V1300:R14 V1324:R26 V1334:R1 V1410:R1; do
  mkdir -p store/ORB
  printf '[General]\nVersion=%s\nRelease=%s\n' "${version%:*}" "${version#*:}" > 'store/ORB/OVL Software.conf'
  rm -rf pictures
  QT_QPA_PLATFORM=offscreen "$programs/ovl-pictures" --folder "$place" --store "$place/store" pictures
  (cd pictures && find . -type f -exec sha256sum {} + | sort -k 2) | sed "s/^/$version /"
done
"$programs/ovl-random-walk" "${2:-1000000}" | sed 's/, [0-9]* s$//'
"$programs/ovl-reference-model" "${3:-5000000}" | sed 's/, [0-9]* s$//'
