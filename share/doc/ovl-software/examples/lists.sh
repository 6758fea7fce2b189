# shellcheck shell=bash disable=SC2154
# What the examples for a list of units share, behind common.sh.

# Takes the devices of a list, one a line. A # at the beginning or behind a blank starts a comment.
read_list() {
  local text
  text=$(sed 's/\r$//; s/\(^\|\s\)#.*//; s/^\s\+//; s/\s\+$//; /^$/d' -- "$1") || exit 2
  [ -n "$text" ] || refuse "$1: no device in it"
  mapfile -t devices <<< "$text"
}

# Runs a command for each device of the list, and goes on after one that fails: each COMMAND...
each() {
  local failed=0 device
  for device in "${devices[@]}"; do
    if "$@" "$device" > "$work/said" 2>&1; then
      echo "$device: done"
    else
      # The last of what was said, with its further lines.
      echo "$device: failed: $(sed '/^[^ ]*: /!H; //h; $!d; g; s/\s\+/ /g; s/^ //; s/^stdin:[0-9]*: //' "$work/said")"
      failed=1
    fi
  done
  return $failed
}
