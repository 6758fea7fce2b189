#!/usr/bin/env bash
# Plays the programs in environments that are against them: run.sh PROGRAMS [GROUP]...
# The groups are the other files of this folder, without a name all of them. Prints a table: the environment, what was
# done, and the outcome. The exit status is 1 if an outcome breaks a promise. Each run has file systems of its own, so it
# needs root. It also needs faketime, strace and locales. It waits for the titles of windows; texts inside a window are
# not read.
# shellcheck disable=SC2317  # the groups use what is here
set -euo pipefail
for tool in faketime strace localedef matchbox-window-manager xclip xdotool Xvfb; do
  command -v "$tool" > /dev/null || { echo "run.sh needs $tool" >&2; exit 2; }
done
[ -n "${OVL_OWN_MOUNTS:-}" ] || exec env OVL_OWN_MOUNTS=yes unshare --mount -- "$0" "$@"
here=$(cd "$(dirname "$0")" && pwd)
programs=$(realpath "$1")
groups=("${@:2}")
[ ${#groups[@]} -gt 0 ] || groups=(together disks homes clocks locales display stopped)
export PATH=$programs:$PATH
place=$(mktemp -d)
trap 'umount --recursive --lazy "$place"; rm -rf "$place"' EXIT
mount -t tmpfs environments "$place"
images=$place/images
ovl-images "$images" V1400R12 V1300R14 > /dev/null
status=0

# A row of the table: row ENVIRONMENT ACT FUNCTION [ARGUMENT]... The function prints the outcome. It works in an empty
# folder, and nothing that it starts outlives it.
row() {
  local broken='' result
  mkdir "$place/row"
  set +e
  (
    set -eE
    trap 'broke_off "$BASH_COMMAND"' ERR
    trap end_programs EXIT
    cd "$place/row" || exit
    "${@:3}"
    for program in "${running[@]}"; do calm "$program"; done
  ) > "$place/outcome" 2> "$place/errors"
  result=$?
  set -e
  [ "$result" = 0 ] || broken='BROKEN: '
  printf '%-32s | %-50s | %s%s\n' "$1" "$2" "$broken" "$(tail -n 1 "$place/outcome")"
  if [ -n "$broken" ]; then
    status=1
    tail -n 20 "$place/errors" "$place/row/said" "$place/row/conversation" >&2 || true
  fi
  umount --recursive --lazy "$place"/row/* 2> /dev/null || true
  rm -rf "$place/row"
}

running=()
end_programs() { jobs -p | xargs --no-run-if-empty kill -KILL 2> /dev/null || true; }
broke_off() {
  echo "\"$1\" failed"
  exit 1
}
fail() {
  echo "$*; in front is \"$(title)\""
  trap - ERR
  exit 1
}

# Neither ended nor busy.
ticks() { awk '{ print $14 + $15 }' "/proc/$1/stat"; }
calm() {
  local before
  ! ended "$1" || fail "a program has ended"
  before=$(ticks "$1")
  sleep 2
  [ $(($(ticks "$1") - before)) -lt 50 ] || fail "a program is busy"
}

# shellcheck source=tests/stories/keyboard/acts.sh
. "$here/../../stories/keyboard/acts.sh"
# shellcheck source=tests/search/environments/acts.sh
. "$here/acts.sh"
printf '%-32s | %-50s | %s\n' environment "what was done" outcome
for group in "${groups[@]}"; do
  # shellcheck source=/dev/null
  . "$here/$group.sh"
done
exit "$status"
