#!/usr/bin/env bash
# Writes a configuration into a unit, reads it back and compares every byte: restore.sh /dev/ttyUSB0 unit.bin
. "$(dirname "$0")/common.sh"
. "$(dirname "$0")/configurations.sh"
[ $# -eq 2 ] || usage DEVICE FILE
fits "$2" > "$work/register" || refuse "nothing was sent"
on_unit "$1" <<< "download $(quoted "$2")"
read_unit "$1"
cmp -- "$2" "$unit"
