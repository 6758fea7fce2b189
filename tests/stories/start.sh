#!/usr/bin/env bash
# Starts ./run in a copy of the checkout, with programs that are built already: start.sh PROGRAMS IMAGES
# It must leave no unit behind, however it ends.
set -euo pipefail
set -m  # each start has a process group, as in a terminal, so that Ctrl-C can be sent to it
source=$(cd "$(dirname "$0")/../.." && pwd)
place=$(mktemp -d)
run=
trap '[ -z "$run" ] || kill -- -"$run" 2> /dev/null || true; rm -rf "$place"' EXIT
checkout="$place/Müller & Söhne/ovl"
build=$place/build
link=$build/site/ports/com1

mkdir -p "$checkout" "$place/stubs" "$build/release" "$build/site/V1400"
cp -r "$source/run" "$source/test" "$source/tools" "$checkout"
cp -rs "$1" "$build/release/bin"
ln -s "$2/V1400/R12" "$build/site/V1400"
touch "$build/site/images.made"
for stub in cmake ninja; do
  printf '#!/bin/sh\n' > "$place/stubs/$stub"
done
printf '#!/bin/sh\necho install ok installed\n' > "$place/stubs/dpkg-query"
chmod +x "$place"/stubs/*
export PATH=$place/stubs:$PATH
unset DISPLAY WAYLAND_DISPLAY

fail() {
  echo "Failed: $*" >&2
  cat "$place/said" >&2
  exit 1
}

wait_until() {
  for _ in $(seq 200); do
    "$@" && return
    sleep 0.05
  done
  fail "$*"
}

# A command must end with this status and print a line that the pattern matches: ends STATUS PATTERN COMMAND...
ends() {
  local status=0
  "${@:3}" > "$place/said" 2>&1 || status=$?
  [ "$status" = "$1" ] || fail "${*:3}: status $status, not $1"
  grep -q -- "$2" "$place/said" || fail "${*:3}: not \"$2\""
}

# The unit removes its link at its end.
linked() { [ -L "$link" ]; }
not_linked() { [ ! -L "$link" ]; }

touch "$checkout/build"
ends 1 'ovl/build/release cannot be written.*run --build FOLDER' "$checkout/run"
ends 1 'ovl/build/asan cannot be written.*test --build FOLDER' "$checkout/test"

for signal in INT TERM HUP KILL; do
  "$checkout/run" --build "$build" > "$place/said" 2>&1 &
  run=$!
  wait_until linked
  receiver=$run
  [ $signal != INT ] || receiver=-$run
  kill -s $signal -- "$receiver"
  status=0
  wait "$run" || status=$?
  [ "$status" = $((128 + $(kill -l $signal))) ] || fail "$signal: status $status"
  wait_until not_linked
done

rm "$build/release/bin/ovl-script"
printf '#!/bin/sh\nexit 4\n' > "$build/release/bin/ovl-script"
chmod +x "$build/release/bin/ovl-script"
ends 4 'What the unit received' "$checkout/run" --build "$build"
not_linked || fail "the unit is still there"
