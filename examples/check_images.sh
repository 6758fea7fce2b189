#!/usr/bin/env bash
# Checks that a folder contains the default image of every register of a firmware. Prints a table with a result for each
# image: good (no findings), with findings to look at, or wrong.
#   check_images.sh site/V1400/R12
# It reads only files, which takes seconds, so it needs neither --jobs nor --resume. It continues after a wrong image. The
# exit status is 1 if an image is wrong. A finding is not an error, because you may change the images.
. "$(dirname "$0")/common.sh"
. "$(dirname "$0")/configurations.sh"
[ $# -eq 1 ] || usage FOLDER
[ -d "$1" ] || refuse "$1: no such folder"
registers=$(started <<< "list ComboReg") || refuse "$1: was not checked"
# The findings of all files at once. The reason why a file cannot be read is found below, for each file.
checked=0
ovl-script --firmware "$version$release" check -- "$1"/*.bin > "$work/findings" 2> /dev/null || checked=$?
[ "$checked" -le 2 ] || refuse "$1: was not checked"
images=0 with_findings=0 wrong=0

# The last line of the output, without its place.
reason() {
  sed '$!d; s/^stdin:[0-9]*: //; s/.*: //' "$work/said"
}

# Prints the result for a file: judge FILE REGISTER
judge() {
  local found findings
  [ -e "$1" ] || { echo "wrong: missing"; return; }
  found=$(fits "$1" 2> "$work/said") || { echo "wrong: $(reason)"; return; }
  [ "$found" = "$2" ] || { echo "wrong: the image of register $found"; return; }
  findings=$(place="$1: " awk 'index($0, ENVIRON["place"]) == 1' "$work/findings")
  [ -n "$findings" ] || { echo "good"; return; }
  echo "findings:"
  echo "${findings//"$1: "/    }"
}

while read -r register; do
  name=${register:1:-1}
  # On V1400, file names have a blank instead of each slash and comma.
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
