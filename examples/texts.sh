#!/usr/bin/env bash
# Reads every unit of a list and keeps its configuration as text in a folder, kitchen.toml for /dev/kitchen: for a
# folder under version control, which then shows what has changed where.
#   texts.sh [--jobs N] [--resume] devices.txt folder
. "$(dirname "$0")/common.sh"
. "$(dirname "$0")/lists.sh"
. "$(dirname "$0")/configurations.sh"
read_options "$@"
[ ${#arguments[@]} -eq 2 ] || usage "[--jobs N] [--resume] DEVICES FOLDER"
read_list "${arguments[0]}"
refuse_same_names
folder=${arguments[1]}
mkdir -p -- "$folder"

keep_text() {
  read_unit "$2" && as_text "$unit" > "$work/text" && keep "$work/text" "$1/${2##*/}.toml"
}

each "$folder" keep_text "$folder"
