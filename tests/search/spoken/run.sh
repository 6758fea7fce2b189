#!/usr/bin/env bash
# What a screen reader says: run.sh PROGRAMS. Starts the program on a display and a bus of its own, reads every tab over
# the accessibility bus and acts on some controls. Prints each visible control, then the findings. The exit status is 0
# without a finding, 1 with one, 2 if it cannot run.
# shellcheck disable=SC2317  # acts.sh uses what is here
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
PATH=$(realpath "$1"):$PATH
python=/usr/bin/python3  # it has the modules of Debian
need() { "${@:2}" > /dev/null 2>&1 || { echo "$1 is missing" >&2; exit 2; }; }  # WHAT COMMAND...
for program in Xvfb dbus-daemon matchbox-window-manager ovl ovl-images xdotool "$python"; do
  need "$program" command -v "$program"
done
need at-spi2-core test -e /usr/share/dbus-1/services/org.a11y.Bus.service
need "python3-gi with gir1.2-atspi-2.0" "$python" -c 'import gi; gi.require_version("Atspi", "2.0")'

place=$(mktemp -d)
trap 'jobs -p | xargs --no-run-if-empty kill 2> /dev/null || true; wait; rm -rf "$place"' EXIT
cd "$place"
fail() { { echo "failed: $*"; tail -n 20 said; } >&2; exit 2; }
# shellcheck source=tests/stories/keyboard/acts.sh
. "$here/../../stories/keyboard/acts.sh"
ovl-images images V1400R12 > /dev/null
set_up_site "$PWD/images"
start_display
# The services that the bus starts inherit this.
export HOME=$PWD XDG_RUNTIME_DIR=$PWD LANG=C.UTF-8
dbus-daemon --session --nofork --print-address=3 3> address >> said 2>&1 &
wait_until test -s address
start_program DBUS_SESSION_BUS_ADDRESS="$(< address)" QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
wait_for_window 'GENERIC - OVL Software'
DBUS_SESSION_BUS_ADDRESS=$(< address) timeout 300 "$python" "$here/listen.py"
