#!/usr/bin/env bash
# Collects the history of every unit of a list into a folder:
#   collect_histories.sh [--jobs N] [--resume] devices.txt histories
. "$(dirname "$0")/common.sh"
. "$(dirname "$0")/lists.sh"
take_list_and_folder "$@"

# CmdUpDow(4) asks for remote mode, CmdUpDow(3) loads the history. The program asks for a file, and does not report it if
# it cannot write this file.
collect() {
  rm -f "$work/history"
  on_unit "$2" <<END || return 1
click CmdUpDow(4)
expect var RemoteHeld true within 2000
wait 400
answer $(quoted "$work/history")
click CmdUpDow(3)
expect var HistoryPending false within 600000
END
  [ "$(head -c 4 "$work/history")" = OVLH ] && keep "$work/history" "$1/${2##*/}.txt"
}

each "$folder" collect "$folder"
