#!/usr/bin/env bash
# Makes the same change on every unit of a list:
#   change_all.sh [--jobs N] devices.txt change.toml
#   change_all.sh [--jobs N] devices.txt DATE_FORMAT_BAK=02 'TRIGGER_DELAY(2)=0A' ...
# The change is a text form with the settings to change, or a list of fields. The page "Fields" of the help lists the
# names of the fields. The script reads each unit first, so every other bit of its configuration stays the same.
# If the text has an error, the script changes no unit and ends with status 2. If the register of a unit does not have an
# option of the text, this unit fails and stays unchanged. The script changes the others.
. "$(dirname "$0")/common.sh"
. "$(dirname "$0")/lists.sh"
. "$(dirname "$0")/configurations.sh"
read_options --resume "$@" # do not repeat a change that is done
[ ${#arguments[@]} -ge 2 ] || usage "[--jobs N] DEVICES TEXT|FIELD=HEX..."
read_list "${arguments[0]}"

# Tries a text on the image that the program starts with. This image is for the register GENERIC, so an error in the
# options of a register is no reason to refuse the text.
try_text() {
  local said
  said=$(started 2>&1 <<< "import $(quoted "$1")") && return
  [ -n "$said" ] && ! grep -v ': ".*" is not an option of this register' <<< "$said" >&2
}

# In the image that the program starts with, every field of the firmware has its right length.
changes=()
for change in "${arguments[@]:1}"; do
  if [ -f "$change" ]; then
    try_text "$change" || refuse "$change: no unit was changed"
    changes+=("import $(quoted "$(readlink -e -- "$change")")")
    continue
  fi
  [[ $change =~ ^([A-Z0-9_]+(\([0-9]+\))?)=([0-9A-Fa-f]+)$ ]] || refuse "$change: neither a text form nor FIELD=HEX"
  field=${BASH_REMATCH[1]} value=${BASH_REMATCH[3]^^}
  held=$(started <<< "field $field") || refuse "$change: no unit was changed"
  [[ $held =~ ^"$field = "[0-9A-F]{${#value}}$ ]] || refuse "$change: does not fit ${held%%$'\n'*}"
  changes+=("set $field $value")
done

# "Open" would set the line settings for some registers. The import of a text form stores only what the text says.
change() {
  read_unit "$1" && as_text "$unit" > "$work/before.toml" || return 1
  {
    printf 'import %s\n' "$(quoted "$work/before.toml")"
    printf '%s\n' "${changes[@]}"
    printf 'stream %s\ndownload\nupload\n' "$(quoted "$work/changed")"
  } | on_unit "$1" || return 1
  cmp -s "$work/changed" "$unit" || { echo "$1: the unit does not have the configuration that was sent" >&2; return 1; }
}

each "$(printf '%s\n' "${changes[@]}"; cat -- "${arguments[@]:1}" 2> /dev/null || true)" change
