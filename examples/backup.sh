#!/usr/bin/env bash
# Reads the configuration of a unit into a file: backup.sh /dev/ttyUSB0 unit.bin
. "$(dirname "$0")/common.sh"
[ $# -eq 2 ] || usage DEVICE FILE
on_unit "$1" <<< "upload $(quoted "$2")"
