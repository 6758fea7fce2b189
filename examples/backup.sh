#!/usr/bin/env bash
# Reads the configuration of a unit and saves it as a file: backup.sh /dev/ttyUSB0 unit.bin
. "$(dirname "$0")/common.sh"
. "$(dirname "$0")/configurations.sh"
[ $# -eq 2 ] || usage DEVICE FILE
read_unit "$1"
keep "$unit" "$2"
