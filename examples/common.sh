# shellcheck shell=bash
# What the examples share. OVL_FIRMWARE is the firmware of the units, OVL_IMAGES the folder of the default images.
# Every example ends with 0 when all is well, 2 when nothing was done because it was called wrongly or has no place for
# its files, else another status. compare.sh has the statuses of diff.
set -euo pipefail
: "${OVL_FIRMWARE:=V1400 R12}"
# The images are beside the programs, in a package as in an archive.
programs=$(dirname "$(readlink -f "$(command -v ovl-script || echo /usr/bin/ovl-script)")")
: "${OVL_IMAGES:=${programs%/bin}/share/ovl-software/images}"

refuse() {
  echo "$(basename "$0"): $*" >&2
  exit 2
}

usage() {
  refuse "usage: $(basename "$0") $*"
}

case ${1-} in
  -h | --help)
    sed '1d; /^#/!Q; s/^# \?//' -- "$0"
    exit
    ;;
esac

[[ $OVL_FIRMWARE =~ ^(V[0-9]+)\ ?(R[0-9]+)$ ]] || refuse "OVL_FIRMWARE is \"$OVL_FIRMWARE\", not such as \"V1400 R12\""
version=${BASH_REMATCH[1]} release=${BASH_REMATCH[2]}
# The compact firmware has the streams and the images of another.
[ "$version$release" != V1410R1 ] || version=V1400 release=R7
work=$(mktemp -d) || exit 2
trap 'rm -rf "$work"' EXIT
# A request to end waits for the transfers under way, which would go on alone and hold their devices.
trap 'exit 143' TERM

# A program folder of its own. The program keeps what it reads from a unit beside the images, where not everyone may
# write. Transfers at the same time need one each.
make_place() {
  work=$1 unit=$1/$version/upload.bin
  mkdir -p "$work/ports" "$work/$version" &&
    ln -s "$(readlink -m -- "$OVL_IMAGES")/$version/$release" "$work/$version/$release"
}
make_place "$work" || exit 2

# A text as ovl-script takes it.
quoted() {
  local text=${1//\\/\\\\}
  text=${text//\"/\\\"}
  printf '"%s"' "${text//$'\n'/\\n}"
}

# Runs the statements of standard input in a program that was started.
started() {
  local first=$version/$release/GENERIC.bin
  [ -r "$work/$first" ] || { echo "$OVL_IMAGES/$first: the program does not start without it" >&2; return 3; }
  {
    printf 'setting Version "%s"\nsetting Release "%s"\n' "$version" "$release"
    printf 'folder %s\nport real\nstart\nexpect no box\n' "$(quoted "$work")"
    cat
  } | ovl-script
}

# The same with the unit behind a device: on_unit /dev/ttyUSB0. The link makes it Comport 1, at 9600 baud, 8 bits, no
# parity. Without the link Comport 1 would be another device.
on_unit() {
  local device
  rm -f "$work/ports/com1" "$unit"
  device=$(readlink -e -- "$1") || { echo "$1: No such file or directory" >&2; return 1; }
  ln -s "$device" "$work/ports/com1" || return 1
  {
    printf 'click cmdConnect\nclick cmdSET\nexpect no box\n'
    cat
    printf 'expect no box\n'
  } | started
}

# Puts a file in its place in one step: what was there stays if that fails.
keep() {
  local place
  place=$(readlink -m -- "$2")
  [ ! -e "$place" ] || { [ -f "$place" ] && [ -w "$place" ]; } || { echo "$2: cannot be written" >&2; return 1; }
  if cp -- "$1" "$place.new" && mv -fT -- "$place.new" "$place"; then return; fi
  rm -f -- "$place.new"
  return 1
}
