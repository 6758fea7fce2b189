#!/usr/bin/env bash
# Compares a unit with a file, one setting after the other. With a list, it compares each unit with the file of its name
# in a folder, such as kitchen.toml for /dev/kitchen. A file is a configuration or a text form. A text form can have some
# of the settings only.
#   compare.sh /dev/ttyUSB0 unit.bin
#   compare.sh [--jobs N] [--resume] devices.txt folder
# The exit status is that of diff: 0 no difference; 1 a difference; 2 wrong usage, or a unit or a file cannot be read.
. "$(dirname "$0")/common.sh"
. "$(dirname "$0")/lists.sh"
. "$(dirname "$0")/configurations.sh"
trouble=2
read_options "$@"
[ ${#arguments[@]} -eq 2 ] || usage "DEVICE FILE, or [--jobs N] [--resume] DEVICES FOLDER"

# 1: they differ; 2: one of them cannot be read.
compare() {
  local report
  # Refuses a wrong file before it reads the unit.
  if grep -qE '^ *(format|firmware|complete) *=|^ *\[' "$2"; then
    started <<< "diff $(quoted "$2")" > /dev/null || return 2
  else
    fits "$2" > "$work/register" || return 2
  fi
  read_unit "$1" || return 2
  as_text "$unit" > "$work/unit.toml" || return 2
  report=$(started <<< "import $(quoted "$work/unit.toml")
diff $(quoted "$2")") || return 2
  echo "$report" || return 2
  [ "$report" = "no difference" ]
}

compare_with_folder() {
  local name=$1/${2##*/} file status=0
  for file in "$name.toml" "$name.bin"; do
    [ -e "$file" ] || continue
    compare "$2" "$file" > "$work/report" || status=$?
    [ "$status" -ne 1 ] || { echo "differs:"; sed 's/^/    /' "$work/report"; } > "$work/outcome"
    return "$status"
  done
  echo "$name: there is neither a .toml nor a .bin" >&2
  return 1
}

if [ -d "${arguments[1]}" ]; then
  read_list "${arguments[0]}"
  refuse_same_names
  each "${arguments[1]}" compare_with_folder "${arguments[1]}"
else
  status=0
  compare "${arguments[@]}" || status=$?
  exit $status
fi
