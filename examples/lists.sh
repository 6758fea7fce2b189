# shellcheck shell=bash disable=SC2154
# What the examples for a list of units share. They include it after common.sh.

at_once=1

resumes=false

# The exit status when a unit has failed.
trouble=1

# Takes the options from the beginning of the arguments. The rest is in `arguments`. --jobs N: works with N units at the
# same time. --resume: leaves out the units for which an earlier run succeeded.
read_options() {
  while true; do
    case ${1-} in
      --jobs)
        [[ ${2-} =~ ^[1-9][0-9]?$ ]] || refuse "--jobs needs a number from 1 to 99"
        at_once=$2
        shift 2
        ;;
      --resume) resumes=true && shift ;;
      *) break ;;
    esac
  done
  arguments=("$@")
}

# Reads the devices of a list, one on each line. A # at the beginning or after a blank begins a comment.
read_list() {
  local text twice
  list=$1
  text=$(sed 's/\r$//; s/\(^\|\s\)#.*//; s/^\s\+//; s/\s\+$//; /^$/d' -- "$1") || exit 2
  [ -n "$text" ] || refuse "$1: no device in it"
  mapfile -t devices <<< "$text"
  twice=$(readlink -m -- "${devices[@]}" | sort | uniq -d)
  [ -z "$twice" ] || refuse "$1: ${twice%%$'\n'*} is in it twice"
}

# Refuses devices that would have the same file name.
refuse_same_names() {
  local twice
  twice=$(printf '%s\n' "${devices[@]##*/}" | sort | uniq -d)
  [ -z "$twice" ] || refuse "$list: several devices share the file name ${twice%%$'\n'*}"
}

# Reads the arguments: a list, and a folder for what is read from its units: take_list_and_folder "$@"
take_list_and_folder() {
  read_options "$@"
  [ ${#arguments[@]} -eq 2 ] || usage "[--jobs N] [--resume] DEVICES FOLDER"
  read_list "${arguments[0]}"
  refuse_same_names
  folder=${arguments[1]}
  mkdir -p -- "$folder" || exit 2
}

# Runs a command for one device in a folder of its own, and stores the outcome: serve NUMBER STATE COMMAND... DEVICE
# If the command fails and has written a file "outcome" there, this file is the outcome.
serve() {
  local number=$1 state=$2 outcomes=$work/outcomes device=${*: -1}
  trap '' INT # finish the transfer
  make_place "$work/$number"
  if "${@:3}" > "$work/said" 2>&1; then
    echo "$device" >> "$state"
    echo 'done' > "$outcomes/$number"
  elif [ -s "$work/outcome" ]; then
    mv "$work/outcome" "$outcomes/$number"
  else
    # The last message of the output, with all its lines.
    echo "failed: $(sed '/^[^ ]*: /!H; //h; $!d; g; s/\s\+/ /g; s/^ //; s/^stdin:[0-9]*: //' "$work/said")" > \
      "$outcomes/$number"
  fi
}

# Prints the table of the outcomes, with the numbers in `failed`, `different` and `left`.
print_table() {
  local number=0 device outcome
  failed=0 different=0 left=0
  for device in "${devices[@]}"; do
    number=$((number + 1))
    outcome=$(cat "$work/outcomes/$number" 2> /dev/null) || outcome="not started"
    case $outcome in
      done*) ;;
      differs*) different=$((different + 1)) ;;
      "not started") left=$((left + 1)) ;;
      *) failed=$((failed + 1)) ;;
    esac
    printf '%-24s %s\n' "$device" "$outcome"
  done
  printf '%s units, %s failed' "${#devices[@]}" "$failed"
  [ "$different" -eq 0 ] || printf ', %s different' "$different"
  [ "$left" -eq 0 ] || printf ', %s not started' "$left"
  echo
}

# After a request to end, this starts no further unit and waits for the running transfers. Otherwise a transfer would
# continue alone and keep its device open.
end_with() {
  echo "$(basename "$0"): waiting for the units that have started" >&2
  while [ -n "$(jobs -pr)" ]; do wait || true; done
  print_table
  exit "$1"
}

# Locks the file with the devices that are done, because two runs at the same time would mix their units. The lock ends
# with the last process of the run.
hold() {
  local lock
  while true; do
    exec {lock}>> "$1" || exit 2
    flock -n "$lock" || refuse "$list: another run works on this list, so nothing was done"
    # Another run has ended in the meantime and removed the file.
    [ "$1" -ef "/dev/fd/$lock" ] && return
    exec {lock}>&-
  done
}

# Runs a command for each device of the list, prints a table of the outcomes, and fails if one has failed:
# each WHAT COMMAND... WHAT says what the run does to the units. The file LIST.EXAMPLE.done has the devices that are done,
# until all are done. A later run with --resume and the same WHAT leaves these devices out.
each() {
  local state what number=0 device failed different left
  state=$list.$(basename "$0" .sh).done
  what="# $version $release $(sha256sum <<< "$1" | cut -d ' ' -f 1)"
  shift
  hold "$state"
  "$resumes" && [ "$(head -n 1 "$state")" = "$what" ] || echo "$what" > "$state" || exit 2
  mkdir "$work/outcomes"
  trap 'end_with 130' INT
  trap 'end_with 143' TERM
  for device in "${devices[@]}"; do
    number=$((number + 1))
    ! grep -qxF -- "$device" "$state" || echo "done before" > "$work/outcomes/$number"
  done
  number=0
  for device in "${devices[@]}"; do
    number=$((number + 1))
    [ ! -e "$work/outcomes/$number" ] || continue
    while [ "$(jobs -pr | wc -l)" -ge "$at_once" ]; do wait -n || true; done
    echo "failed: interrupted" > "$work/outcomes/$number"
    (serve "$number" "$state" "$@" "$device") &
  done
  wait
  print_table
  [ "$failed" -eq 0 ] || return "$trouble"
  [ "$different" -eq 0 ] || return 1
  rm -f -- "$state"
}
