#!/usr/bin/env bash
# Collects the history of every unit of a list into a folder: collect_histories.sh devices.txt histories
. "$(dirname "$0")/common.sh"
. "$(dirname "$0")/lists.sh"
[ $# -eq 2 ] || usage DEVICES FOLDER
read_list "$1"
twice=$(printf '%s\n' "${devices[@]##*/}" | sort | uniq -d)
[ -z "$twice" ] || refuse "$1: several devices would be kept as ${twice%%$'\n'*}.txt"
mkdir -p -- "$2"

# CmdUpDow(4) asks for remote mode, CmdUpDow(3) loads the history; the program asks where to keep it, and does not tell
# when it cannot.
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

each collect "$2"
