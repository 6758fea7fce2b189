#!/usr/bin/env bash
# Makes the same change on every unit of a list: change_all.sh devices.txt DATE_FORMAT_BAK=02 'TRIGGER_DELAY(2)=0A' ...
# The page "Fields" of the help lists the names. Each unit is read first, so that the rest of it stays as it is.
. "$(dirname "$0")/common.sh"
. "$(dirname "$0")/lists.sh"
. "$(dirname "$0")/configurations.sh"
[ $# -ge 2 ] || usage DEVICES FIELD=HEX...
read_list "$1"

# The image that the program starts with has every field of the firmware at its length.
changes=()
for change in "${@:2}"; do
  [[ $change =~ ^([A-Z0-9_]+(\([0-9]+\))?)=([0-9A-Fa-f]+)$ ]] || refuse "$change: not FIELD=HEX"
  field=${BASH_REMATCH[1]} value=${BASH_REMATCH[3]^^}
  held=$(started <<< "field $field") || refuse "$change: no unit was changed"
  [[ $held =~ ^"$field = "[0-9A-F]{${#value}}$ ]] || refuse "$change: does not fit ${held%%$'\n'*}"
  changes+=("$field $value")
done

# What is to be sent, as the program makes it of the file: some registers set the line whenever they are opened.
changed() {
  printf 'answer %s\nclick OpenMenu\n' "$(quoted "$work/before")"
  printf 'set %s\n' "${changes[@]}"
  printf 'stream %s\n' "$(quoted "$work/changed")"
}

change() {
  local others
  read_unit "$1" && cp "$unit" "$work/before" || return 1
  { changed; printf 'diff %s %s\n' "$(quoted "$work/before")" "$(quoted "$work/changed")"; } |
    started > "$work/report" || return 1
  others=$(sed -n 's/: .* -> .*//p' "$work/report" | grep -vxFf <(printf '%s\n' "${changes[@]%% *}") | paste -sd ' ')
  [ -z "$others" ] || { echo "$1: would change $others too; name it with the value that it is to have" >&2; return 1; }
  { changed; printf 'download\nupload\n'; } | on_unit "$1" || return 1
  cmp -s "$work/changed" "$unit" || { echo "$1: came back otherwise than it was sent" >&2; return 1; }
}

each change
