# What the examples share. OVL_FIRMWARE is the firmware of the units, OVL_IMAGES the folder of the default images.
set -euo pipefail
: "${OVL_FIRMWARE:=V1400 R12}" "${OVL_IMAGES:=/usr/share/ovl-software/images}"
version=${OVL_FIRMWARE% *}
release=${OVL_FIRMWARE#* }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/ports"
ln -s "$(readlink -f "$OVL_IMAGES")/$version" "$work/$version"

usage() {
  echo "usage: $(basename "$0") $*" >&2
  exit 2
}

# A text as ovl-script takes it.
quoted() {
  printf '"%s"' "$(printf '%s' "$1" | sed 's/[\\"]/\\&/g')"
}

# Runs the statements of standard input in a program that was started.
started() {
  {
    printf 'setting Version "%s"\nsetting Release "%s"\n' "$version" "$release"
    printf 'folder %s\nport real\nstart\nexpect no box\n' "$(quoted "$work")"
    cat
  } | ovl-script
}

# The same with the unit behind a device: on_unit /dev/ttyUSB0. The link makes it Comport 1, at 9600 baud, 8 bits, no
# parity.
on_unit() {
  ln -sfn "$(readlink -f "$1")" "$work/ports/com1"
  {
    printf 'click cmdConnect\nclick cmdSET\nexpect no box\n'
    cat
    printf 'expect no box\n'
  } | started
}

# Runs a command for each device of a list, one a line, and goes on after one that fails: each LIST COMMAND...
each() {
  local list=$1 failed=0 device
  shift
  while read -r device <&3; do
    if "$@" "$device" > "$work/said" 2>&1; then
      echo "$device: done"
    else
      echo "$device: failed: $(tail -n 1 "$work/said")"
      failed=1
    fi
  done 3< "$list"
  return $failed
}
