#!/usr/bin/env bash
# Reads every unit of a list and writes its configuration as text into a folder, such as kitchen.toml for /dev/kitchen.
# If the folder is under version control, you see what has changed in which unit.
#   texts.sh [--jobs N] [--resume] devices.txt folder
. "$(dirname "$0")/common.sh"
. "$(dirname "$0")/lists.sh"
. "$(dirname "$0")/configurations.sh"
take_list_and_folder "$@"

keep_text() {
  read_unit "$2" && as_text "$unit" > "$work/text" && keep "$work/text" "$1/${2##*/}.toml"
}

each "$folder" keep_text "$folder"
