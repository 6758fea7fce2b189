#!/usr/bin/env bash
# Checks that a folder holds the default image of every register of a firmware, and prints what to look at in them:
#   check_images.sh site/V1400/R12
. "$(dirname "$0")/common.sh"
. "$(dirname "$0")/configurations.sh"
[ $# -eq 1 ] || usage FOLDER
[ -d "$1" ] || refuse "$1: no such folder"
registers=$(started <<< "list ComboReg") || refuse "$1: was not checked"
wrong=0 sound=()

complain() {
  echo "$1: $2"
  wrong=1
}

while read -r register; do
  name=${register:1:-1}
  # In the file names of V1400 each slash and comma is a blank.
  [ "$version" != V1400 ] || name=${name//[\/,]/ }
  file=$1/$name.bin
  if [ ! -e "$file" ]; then
    complain "$file" "missing"
  elif ! found=$(fits "$file" 2> "$work/said"); then
    complain "$file" "$(sed '$!d; s/^stdin:[0-9]*: //; s/.*: //' "$work/said")"
  elif [ "$found" != "$register" ]; then
    complain "$file" "the image of register $found"
  else
    sound+=("$file")
  fi
done <<< "$registers"
# Images are made to be changed, so a finding in one is no fault of the folder.
[ ${#sound[@]} -eq 0 ] || ovl-script --firmware "$version$release" check "${sound[@]}" || true
exit $wrong
