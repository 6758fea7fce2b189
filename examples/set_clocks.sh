#!/usr/bin/env bash
# Sets the clock of every unit of a list to the time of this computer:
#   set_clocks.sh [--jobs N] [--resume] devices.txt
. "$(dirname "$0")/common.sh"
. "$(dirname "$0")/lists.sh"
read_options "$@"
[ ${#arguments[@]} -eq 1 ] || usage "[--jobs N] [--resume] DEVICES"
read_list "${arguments[0]}"

# CmdUpDow(4) asks for remote mode, CmdUpDow(2) sets the clock that the panel shows.
set_clock() {
  on_unit "$1" <<END
wait 1200
click CmdUpDow(4)
expect var RemoteHeld true within 2000
wait 400
click CmdUpDow(2)
expect var SetTimePending false within 10000
expect box "SET TIME DATE FINISHED."
END
}

each clock set_clock
