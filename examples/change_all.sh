#!/usr/bin/env bash
# Makes the same change on every unit of a list: change_all.sh devices.txt DATE_FORMAT_BAK=02 TITLE_BAK(1)=41 ...
# The help's page "Fields" tells the names. Each unit is read first, so that the rest of it stays as it is.
. "$(dirname "$0")/common.sh"
[ $# -ge 2 ] || usage DEVICES FIELD=HEX...
list=$1
shift

change() {
  {
    echo upload
    printf 'set %s\n' "${changes[@]}"
    echo download
    echo upload
    printf 'expect field %s\n' "${changes[@]}"
  } | on_unit "$1"
}

changes=("${@/=/ }")
each "$list" change
