#!/usr/bin/env bash
# Reads every unit of a list and keeps its configuration as text in a folder, kitchen.toml for /dev/kitchen: for a
# folder under version control, which then shows what has changed where.
#   texts.sh [--jobs N] [--resume] devices.txt folder
. "$(dirname "$0")/common.sh"
. "$(dirname "$0")/lists.sh"
. "$(dirname "$0")/configurations.sh"
take_list_and_folder "$@"

keep_text() {
  read_unit "$2" && as_text "$unit" > "$work/text" && keep "$work/text" "$1/${2##*/}.toml"
}

each "$folder" keep_text "$folder"
