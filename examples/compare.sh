#!/usr/bin/env bash
# Compares a unit with its file, field by field: compare.sh /dev/ttyUSB0 unit.bin
# Exit status: 0 they are the same; 1 they differ; another when the unit or the file cannot be read.
. "$(dirname "$0")/common.sh"
[ $# -eq 2 ] || usage DEVICE FILE
on_unit "$1" <<< "upload $(quoted "$work/unit.bin")" || exit 3
report=$(started <<< "diff $(quoted "$2") $(quoted "$work/unit.bin")") || exit 3
echo "$report"
[ "$report" = "no difference" ]
