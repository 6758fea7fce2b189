#!/usr/bin/env bash
# Compares a unit with its file, setting by setting, or each unit of a list with the file of its name in a folder, such
# as kitchen.toml for /dev/kitchen. A file is a configuration or a text form; a text form can name some settings only.
#   compare.sh /dev/ttyUSB0 unit.bin
#   compare.sh [--jobs N] [--resume] devices.txt folder
# Exit status: 0 they are the same; 1 they differ, or a unit of the list cannot be read; 3 the unit or the file cannot.
. "$(dirname "$0")/common.sh"
. "$(dirname "$0")/lists.sh"
. "$(dirname "$0")/configurations.sh"
read_options "$@"
[ ${#arguments[@]} -eq 2 ] || usage "DEVICE FILE, or [--jobs N] [--resume] DEVICES FOLDER"

# 1: they differ; 3: one of them cannot be read.
compare() {
  local report
  [ "${2##*.}" = toml ] || fits "$2" > "$work/register" || return 3
  read_unit "$1" || return 3
  as_text "$unit" > "$work/unit.toml" || return 3
  report=$(started <<< "import $(quoted "$work/unit.toml")
diff $(quoted "$2")") || return 3
  echo "$report" || return 3
  [ "$report" = "no difference" ]
}

compare_with_folder() {
  local name=$1/${2##*/} file
  for file in "$name.toml" "$name.bin"; do
    [ -e "$file" ] || continue
    compare "$2" "$file" > "$work/report" && return
    if grep -q ' -> ' "$work/report"; then
      { echo "differs:"; sed 's/^/    /' "$work/report"; } > "$work/outcome"
    else
      cat "$work/report"
    fi
    return 1
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
