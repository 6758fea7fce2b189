# shellcheck shell=bash
# What the examples share. OVL_FIRMWARE is the firmware of the units, OVL_IMAGES the folder of the default images.
# The exit status of every example is 0 for success. It is 2 if nothing was done, because the usage was wrong or there was
# no place for the files of the script. All other failures have another status. compare.sh has the exit status of diff.
set -euo pipefail
: "${OVL_FIRMWARE:=V1400 R12}"
# The path from the programs to the images is the same in the package and in the archive.
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
# This firmware uses the streams and the images of another one.
[ "$version$release" != V1410R1 ] || version=V1400 release=R7
work=$(mktemp -d) || exit 2
trap 'rm -rf "$work"' EXIT
# A request to end waits for the running transfers. Otherwise they would continue alone and keep their devices open.
trap 'exit 143' TERM

# Makes a program folder for one transfer. The program stores what it reads from a unit beside the images, where not
# every user may write. Transfers that run at the same time need a folder each.
make_place() {
  work=$1 unit=$1/$version/upload.bin
  mkdir -p "$work/ports" "$work/$version" &&
    ln -s "$(readlink -m -- "$OVL_IMAGES")/$version/$release" "$work/$version/$release"
}
make_place "$work" || exit 2

# Quotes a text for ovl-script.
quoted() {
  local text=${1//\\/\\\\}
  text=${text//\"/\\\"}
  printf '"%s"' "${text//$'\n'/\\n}"
}

# Starts a program and runs the statements of standard input in it.
started() {
  local first=$version/$release/GENERIC.bin
  [ -r "$work/$first" ] || { echo "$OVL_IMAGES/$first: this file is missing, and the program needs it to start" >&2; return 3; }
  {
    printf 'setting Version "%s"\nsetting Release "%s"\n' "$version" "$release"
    printf 'folder %s\nport real\nstart\nexpect no box\n' "$(quoted "$work")"
    cat
  } | ovl-script
}

# The same for the unit on a device: on_unit /dev/ttyUSB0. The link makes the device Comport 1, with 9600 baud, 8 bits and
# no parity. Without the link, Comport 1 would be another device.
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

# Puts a file in its place in one step. If this fails, the old file stays.
keep() {
  local place
  place=$(readlink -m -- "$2")
  [ ! -e "$place" ] || { [ -f "$place" ] && [ -w "$place" ]; } || { echo "$2: cannot be written" >&2; return 1; }
  if cp -- "$1" "$place.new" && mv -fT -- "$place.new" "$place"; then return; fi
  rm -f -- "$place.new"
  return 1
}
