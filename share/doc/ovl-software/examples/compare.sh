#!/usr/bin/env bash
# Compares a unit with its file, field by field: compare.sh /dev/ttyUSB0 unit.bin
# Exit status: 0 they are the same; 1 they differ; 3 the unit or the file cannot be read.
. "$(dirname "$0")/common.sh"
. "$(dirname "$0")/configurations.sh"
[ $# -eq 2 ] || usage DEVICE FILE
{ fits "$2" > "$work/register" && read_unit "$1"; } || exit 3
report=$(started <<< "diff $(quoted "$2") $(quoted "$unit")") || exit 3
echo "$report" || exit 3
[ "$report" = "no difference" ]
