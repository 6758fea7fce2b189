# shellcheck shell=bash disable=SC2154
# What the examples that read configurations share. They include it after common.sh.

# Whether a file is a configuration of the firmware. The program itself checks only the first digits. Prints the register
# of the file. If it does not fit, prints to standard error what it is: fits FILE, fits FILE NAME.
fits() {
  local lines others
  lines=$(started <<< "inspect $(quoted "$1")") || return 1
  sed -n "s/^fits $version$release: register [0-9]* \(\".*\"\)$/\1/p" <<< "$lines" | grep . && return
  others=$(sed -n 's/^fits \([^:]*\): .*/\1/p' <<< "$lines" | paste -sd ' ')
  echo "${2-$1}: not a configuration of $version$release. It fits ${others:-no firmware}" >&2
  return 1
}

# Reads the unit on a device into the file $unit.
read_unit() {
  on_unit "$1" <<< upload && fits "$unit" "${1##*/}" > "$work/register"
}

# Prints a configuration file as text.
as_text() {
  ovl-script --firmware "$version$release" export "$1"
}
