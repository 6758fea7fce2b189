#!/usr/bin/env bash
# Runs one of the examples against units in software: run.sh PROGRAMS IMAGES EXAMPLE
set -euo pipefail
examples=$(cd "$(dirname "$0")/../../../examples" && pwd)
place=$(mktemp -d)
units=()
# After a failure it prints what the last command printed.
at_end() {
  [ "$1" = 0 ] || cat said >&2 || true
  kill "${units[@]}" 2> /dev/null || true
  rm -rf "$place"
}
trap 'at_end $?' EXIT
site="$place/the \"new\" site"
export PATH=$1:$PATH OVL_IMAGES=$site/images TMPDIR=$site
mkdir -p "$site/images/V1400" "$site/images/V1300"
cd "$site"
ln -s "$2"/V1400/R* images/V1400
ln -s "$2"/V1300/R* images/V1300

count=2
[ "$3" != many ] || count=${OVL_UNITS:-5}
for unit in $(seq "$count"); do
  ovl-unit --memory "memory$unit" --link "unit$unit" --history lines:5 --clock-file "clock$unit" --log "log$unit" --pace off > said$unit &
  units+=($!)
  for _ in $(seq 100); do [ -s said$unit ] && break; sleep 0.1; done
  echo "$site/unit$unit" >> devices
done

# A command must end with this status and say what the pattern matches: fails STATUS PATTERN COMMAND...
fails() {
  local status=0
  "${@:3}" > said 2>&1 || status=$?
  [ "$status" = "$1" ] && grep -q -- "$2" said && return
  echo "${*:3}: status $status, not $1, or not \"$2\":" >&2
  exit 1
}

equal() {
  [ "$1" != "$2" ] || return 0
  echo "\"$1\", not \"$2\":" >&2
  exit 1
}

echo unit1 > one
case $3 in
  backup)
    "$examples/backup.sh" unit1 saved
    cp memory1 before
    cp saved kept
    fails 1 '^gone/unit3: No such file' "$examples/backup.sh" gone/unit3 saved
    OVL_FIRMWARE="V1400 R7" fails 1 'It fits V1400R11 V1400R12$' "$examples/backup.sh" unit1 saved
    cmp saved kept
    "$examples/change_all.sh" one DATE_FORMAT_BAK=02
    fails 1 differ cmp memory1 before
    fails 2 'It fits V1400R7$' "$examples/restore.sh" unit1 images/V1400/R7/GENERIC.bin
    "$examples/restore.sh" unit1 saved
    cmp memory1 before
    ;;
  change_all)
    cp memory1 before
    for wrong in TITLE_BAK=41 EXCPSTRS=41 DATE_FORMAT_BAK=2 DATE_FORMAT_BAK=0G DSPROW=01; do
      fails 2 "$wrong: " "$examples/change_all.sh" devices DECIMAL_POINT_BAK=01 "$wrong"
    done
    cmp memory1 before
    echo '# none' > none
    fails 2 'none: no device' "$examples/change_all.sh" none DECIMAL_POINT_BAK=01
    fails 2 'no list: No such file' "$examples/change_all.sh" 'no list' DECIMAL_POINT_BAK=01
    printf 'unit1\nunit1\n' > twice
    fails 2 'twice: .* is in it twice' "$examples/change_all.sh" twice DECIMAL_POINT_BAK=01
    printf '# kitchen\r\nunit1 # left\r\n\ngone/unit3\n unit2' > devices
    fails 1 '^gone/unit3 *failed: gone/unit3: No such' "$examples/change_all.sh" devices DATE_FORMAT_BAK=02 SITE_NO_BAK=0a
    equal "$(grep -c ' done$' said) $(wc -l < said)" "2 4"
    cmp memory1 memory2
    fails 1 differ cmp memory1 before
    # The rest of a unit stays as it is, also where Open would set the line for the register.
    "$examples/restore.sh" unit1 images/V1400/R12/PANASONIC.bin
    "$examples/change_all.sh" one RX_BAUDRATE=01
    "$examples/change_all.sh" one DATE_FORMAT_BAK=02
    # An option of one register changes the unit that has it. The other one stays as it is.
    printf 'format = 1\n["REGISTER SELECT"]\nWiring = "ACK"\n' > option.toml
    printf 'unit1\nunit2\n' > devices
    cp memory2 before
    fails 1 '^unit2 *failed: .*"Wiring" is not an option of this register' "$examples/change_all.sh" devices option.toml
    cmp memory2 before
    sed -i 's/Wiring/Wirin/' option.toml
    fails 2 'Wirin' "$examples/change_all.sh" devices option.toml
    "$examples/backup.sh" unit1 saved
    ovl-script --firmware V1400R12 export saved > text
    grep -q '^Wiring = "ACK"' text
    grep -q '^"RX BAUDRATE" = "2400"' text
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
    equal "$(head -n 1 histories/unit1.txt | tr -d '\r') $(wc -l < histories/unit2.txt)" "OVLH 7"
    mkdir -p old/unit1.txt
    fails 1 '^unit1 *failed: .' "$examples/collect_histories.sh" one old
    echo other/unit1 >> one
    fails 2 'file name unit1$' "$examples/collect_histories.sh" one histories
    ;;
  compare)
    "$examples/backup.sh" unit1 saved
    "$examples/compare.sh" unit1 saved
    "$examples/change_all.sh" one DATE_FORMAT_BAK=02
    fails 1 '^TIME / LANGUAGE: DATE FORMAT: "YY/MM/DD" -> "MM/DD/YY"$' "$examples/compare.sh" unit1 saved
    fails 2 '^gone/unit3: No such file' "$examples/compare.sh" gone/unit3 saved
    fails 2 'It fits V1400R7$' "$examples/compare.sh" unit1 images/V1400/R7/GENERIC.bin
    mkdir files
    cp saved files/unit1.bin
    printf 'unit1\ngone/unit3\n' > devices
    fails 2 '^2 units, 1 failed, 1 different$' "$examples/compare.sh" devices files
    echo other/unit1 >> one
    fails 2 'file name unit1$' "$examples/compare.sh" one images
    ;;
  # One unit dies in the middle of its transfer. The next run does what is left, and nothing else.
  many)
    printf 'format = 1\n["TIME / LANGUAGE"]\nTITLE = "SHOP 12"\n' > title.toml
    printf 'format = 1\n["TIME / LANGUAGE"]\nTITEL = "SHOP 12"\n' > wrong.toml
    fails 2 'TITEL.*Did you mean "TITLE"' "$examples/change_all.sh" devices wrong.toml
    "$examples/texts.sh" --jobs 4 devices texts > said
    cp -r texts before
    (timeout 60 sh -c 'until grep -q /LD log3; do sleep 0.05; done'; kill -9 "${units[2]}") &
    fails 1 "unit3 *failed: " "$examples/change_all.sh" --jobs 4 devices title.toml
    equal "$(tail -n 1 said)" "$count units, 1 failed"
    fails 1 '^TIME / LANGUAGE: TITLE: "SHOP 12" -> "empty"$' "$examples/compare.sh" unit2 before/unit2.toml
    ovl-unit --memory memory3 --link unit3 --pace off > said3 &
    units[2]=$!
    for _ in $(seq 100); do [ -s said3 ] && break; sleep 0.1; done
    "$examples/change_all.sh" --jobs 4 devices title.toml > said
    equal "$(grep -c ' done before$' said) $(grep -c ' done$' said)" "$((count - 1)) 1"
    [ ! -e devices.change_all.done ]
    fails 1 '^    TIME / LANGUAGE: TITLE: "SHOP 12" -> "empty"$' "$examples/compare.sh" --jobs 4 devices texts
    # A second run for the same list does not touch what the first one keeps. A run that is broken off prints its table.
    env --default-signal=INT "$examples/change_all.sh" devices SITE_NO_BAK=0A > first 2>&1 &
    first=$!
    timeout 60 sh -c 'until [ -s devices.change_all.done ]; do sleep 0.05; done'
    fails 2 '^change_all.sh: devices: another run ' "$examples/change_all.sh" devices SITE_NO_BAK=0B
    kill -INT "$first"
    status=0
    wait "$first" || status=$?
    equal "$status" 130
    grep -q "^$site/unit$count *not started\$" first
    grep -q "^$count units, 0 failed, [1-9][0-9]* not started\$" first
    cp title.toml texts/unit1.toml
    "$examples/compare.sh" unit1 texts/unit1.toml
    ;;
  check_images)
    "$examples/check_images.sh" images/V1400/R12
    OVL_FIRMWARE="V1300 R14" "$examples/check_images.sh" images/V1300/R14
    cp -r images/V1400/R12/ copy
    rm copy/ALOHA.bin copy/CASIO.bin
    mkdir copy/CASIO.bin
    cp copy/IBM.bin copy/NCR.bin
    cp images/V1300/R14/GENERIC.bin copy
    fails 1 '^ALOHA.bin *wrong: missing$' "$examples/check_images.sh" copy
    found=$(grep -c -e '^GENERIC.bin *wrong: .* V1300R14 ' -e '^NCR.bin *wrong: .*"IBM"$' -e '^CASIO.bin *wrong: Is a d' said)
    grep -A 1 '^TCPIP.bin *findings:$' said | grep -q '^    error: no-ip-address: '
    equal "$found $(tail -n 1 said)" "3 $(ls "$2/V1400/R12" | wc -l) images, 1 with findings, 4 wrong"
    OVL_IMAGES=none fails 2 '^none/V1400/R12/GENERIC.bin: ' "$examples/check_images.sh" copy
    ;;
esac
[ ! -e images/V1400/upload.bin ]

for unit in "${units[@]}"; do
  kill -TERM "$unit"
  wait "$unit"
done

# The results of the example, to compare them with those of another build. Clocks and terminals differ in each run.
find . -type f ! -name 'clock*' ! -name 'said*' ! -name 'log*' ! -name devices -exec sha256sum {} + | sort -k 2
