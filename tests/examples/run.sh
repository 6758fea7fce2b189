#!/usr/bin/env bash
# Runs one of the examples against units in software: run.sh PROGRAMS IMAGES EXAMPLE
set -euo pipefail
examples=$(cd "$(dirname "$0")/../../examples" && pwd)
export PATH=$1:$PATH OVL_IMAGES=$2
site=$(mktemp -d)
cd "$site"
units=()
trap 'kill "${units[@]}" 2>/dev/null || true; rm -rf "$site"' EXIT

for unit in 1 2; do
  ovl-unit --memory "memory$unit" --link "unit$unit" --history lines:5 --clock-file "clock$unit" --pace off > said$unit &
  units+=($!)
  for _ in $(seq 100); do [ -s said$unit ] && break; sleep 0.1; done
  echo "$site/unit$unit" >> devices
done

fails() {
  if "$@" > said; then echo "$* did not fail" >&2; exit 1; fi
}

case $3 in
  backup)
    "$examples/backup.sh" unit1 saved
    cp memory1 before
    echo unit1 > one
    "$examples/change_all.sh" one DATE_FORMAT_BAK=02
    fails cmp memory1 before
    "$examples/restore.sh" unit1 saved
    cmp memory1 before
    ;;
  change_all)
    echo unit3 >> devices
    fails "$examples/change_all.sh" devices DATE_FORMAT_BAK=02 DECIMAL_POINT_BAK=01
    [ "$(grep -c ': done$' said) $(grep -c '^unit3: failed: .' said)" = "2 1" ]
    cmp memory1 memory2
    ;;
  set_clocks)
    "$examples/set_clocks.sh" devices
    for unit in 1 2; do
      set_to=$(sed 's/^\(..\)-\(..\)-\(..\)/20\3-\1-\2/' clock$unit)
      [ $(($(date +%s) - $(date -d "$set_to" +%s))) -lt 60 ]
    done
    ;;
  collect_histories)
    "$examples/collect_histories.sh" devices histories
    [ "$(head -n 1 histories/unit1.txt | tr -d '\r') $(wc -l < histories/unit2.txt)" = "OVLH 7" ]
    ;;
  compare)
    "$examples/backup.sh" unit1 saved
    "$examples/compare.sh" unit1 saved
    echo unit1 > one
    "$examples/change_all.sh" one DATE_FORMAT_BAK=02
    fails "$examples/compare.sh" unit1 saved
    grep -q '^DATE_FORMAT_BAK: .* -> 02$' said
    ;;
  check_images)
    "$examples/check_images.sh" "$OVL_IMAGES/V1400/R12"
    OVL_FIRMWARE="V1300 R14" "$examples/check_images.sh" "$OVL_IMAGES/V1300/R14"
    mkdir copy
    cp "$OVL_IMAGES/V1400/R12/"*.bin copy
    rm copy/ALOHA.bin
    cp "$OVL_IMAGES/V1300/R14/GENERIC.bin" copy
    fails "$examples/check_images.sh" copy
    [ "$(grep -c -e '^copy/ALOHA.bin: missing$' -e '^copy/GENERIC.bin: opening' said) $(wc -l < said)" = "2 2" ]
    ;;
esac

for unit in "${units[@]}"; do
  kill -TERM "$unit"
  wait "$unit"
done
