#!/usr/bin/env bash
# Plays a session on the keyboard, with no pointer, against a unit in software: run.sh PROGRAMS IMAGES SESSION
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
place=$(mktemp -d)
trap 'kill $(jobs -p) 2> /dev/null || true; wait; rm -rf "$place"' EXIT
export PATH=$1:$PATH
cd "$place"
cp "$here/leaks_of_libraries.txt" leaks  # its option takes no path with blanks

fail() {
  echo "Failed: $*. In front is \"$(title)\". The programs and the unit:" >&2
  cat said conversation >&2
  exit 1
}

# shellcheck source=tests/stories/keyboard/acts.sh
. "$here/acts.sh"
set_up_site "$2"
start_display
# shellcheck source=/dev/null
. "$here/$3.sh"
