#!/usr/bin/env bash
# Checks that a folder holds a default image for every register of a firmware: check_images.sh site/V1400/R12
. "$(dirname "$0")/common.sh"
[ $# -eq 1 ] || usage FOLDER
wrong=0

complain() {
  echo "$1: $2"
  wrong=1
}

while read -r name; do
  # V1400 spells the two characters that no file name of its may hold as blanks.
  [ "$version" != V1400 ] || name=${name//[\/,]/ }
  file=$1/$name.bin
  if [ ! -r "$file" ]; then
    complain "$file" "missing"
    continue
  fi
  printf 'inspect %s\n' "$(quoted "$file")" >> "$work/inspections"
  echo "$file" >> "$work/files"
done < <(started <<< "list ComboReg" | sed 's/^"//; s/"$//')

[ -s "$work/files" ] || { echo "$1: not one image of $version $release"; exit 1; }
started < "$work/inspections" | grep "^opening it under " > "$work/verdicts"
while IFS=$'\t' read -r file verdict; do
  [ "${verdict##* loads it}" = "" ] || complain "$file" "$verdict"
done < <(paste "$work/files" "$work/verdicts")
exit $wrong
