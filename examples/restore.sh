#!/usr/bin/env bash
# Writes a configuration into a unit, reads it back and compares to the byte: restore.sh /dev/ttyUSB0 unit.bin
. "$(dirname "$0")/common.sh"
[ $# -eq 2 ] || usage DEVICE FILE
on_unit "$1" <<END
download $(quoted "$2")
upload $(quoted "$work/back.bin")
END
cmp "$2" "$work/back.bin"
