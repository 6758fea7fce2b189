#!/usr/bin/env bash
# Checks that a folder holds the default image of every register of a firmware, and prints a table of what each is:
# sound, with findings to look at, or wrong.
#   check_images.sh site/V1400/R12
# It reads files and no unit, in seconds: there is no port to wait for with --jobs, and nothing to resume. It goes on
# after a wrong image, and ends with 1 if there is one. Images are made to be changed, so a finding is no fault.
. "$(dirname "$0")/common.sh"
. "$(dirname "$0")/configurations.sh"
[ $# -eq 1 ] || usage FOLDER
[ -d "$1" ] || refuse "$1: no such folder"
registers=$(started <<< "list ComboReg") || refuse "$1: was not checked"
# The findings of all files at once. Why one of them cannot be read is asked of each below.
checked=0
ovl-script --firmware "$version$release" check -- "$1"/*.bin > "$work/findings" 2> /dev/null || checked=$?
[ "$checked" -le 2 ] || refuse "$1: was not checked"
images=0 with_findings=0 wrong=0

# The last of what was said, without its place.
reason() {
  sed '$!d; s/^stdin:[0-9]*: //; s/.*: //' "$work/said"
}

# Prints what a file is: judge FILE REGISTER
judge() {
  local found findings
  [ -e "$1" ] || { echo "wrong: missing"; return; }
  found=$(fits "$1" 2> "$work/said") || { echo "wrong: $(reason)"; return; }
  [ "$found" = "$2" ] || { echo "wrong: the image of register $found"; return; }
  findings=$(place="$1: " awk 'index($0, ENVIRON["place"]) == 1' "$work/findings")
  [ -n "$findings" ] || { echo "sound"; return; }
  echo "findings:"
  echo "${findings//"$1: "/    }"
}

while read -r register; do
  name=${register:1:-1}
  # In the file names of V1400 each slash and comma is a blank.
  [ "$version" != V1400 ] || name=${name//[\/,]/ }
  outcome=$(judge "$1/$name.bin" "$register")
  case $outcome in
    findings*) with_findings=$((with_findings + 1)) ;;
    wrong*) wrong=$((wrong + 1)) ;;
  esac
  images=$((images + 1))
  printf '%-32s %s\n' "$name.bin" "$outcome"
done <<< "$registers"
echo "$images images, $with_findings with findings, $wrong wrong"
[ "$wrong" -eq 0 ]
