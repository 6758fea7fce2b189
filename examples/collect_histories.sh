#!/usr/bin/env bash
# Collects the history of every unit of a list into a folder: collect_histories.sh devices.txt histories
. "$(dirname "$0")/common.sh"
[ $# -eq 2 ] || usage DEVICES FOLDER
mkdir -p "$2"

# CmdUpDow(4) asks for remote mode, CmdUpDow(3) loads the history; the program asks where to keep it.
collect() {
  on_unit "$2" <<END
click CmdUpDow(4)
expect var RemoteHeld true within 2000
wait 400
answer $(quoted "$1/$(basename "$2").txt")
click CmdUpDow(3)
expect var HistoryPending false within 600000
END
}

each "$1" collect "$2"
