#!/usr/bin/env bash
# Transfers over lines with the times of hardware: run.sh PROGRAMS IMAGES. IMAGES has the default images of V1400 R12.
# Prints for each line whether upload, download, history and the scan went well, and which share of the wire's time the
# upload and the download used. The last rows lose or double characters toward the program, which the protocol cannot
# always notice; "differs" is an upload that was taken and is not what the unit holds. The exit status is 0 if every
# other row is right.
set -euo pipefail
programs=$(realpath "$1") images=$(realpath "$2")
[ -d "$images/V1400/R12" ] || { echo "$images has no default images of V1400 R12" >&2; exit 2; }
export PATH=$programs:$PATH
place=$(mktemp -d)
started=()
end_programs() {
  [ ${#started[@]} -eq 0 ] || { kill "${started[@]}" && wait "${started[@]}"; } 2> /dev/null || true
  started=()
}
trap 'end_programs; rm -rf "$place"' EXIT
mkdir -p "$place/ports" "$place/V1400"
ln -s "$images/V1400/R12" "$place/V1400/R12"
cd "$place"
status=0

await() { for _ in $(seq 50); do [ -e "$1" ] && return; sleep 0.1; done; echo "$1 is missing" >&2; exit 1; }

# Statements on the line of SPEED, which is element ELEMENT of the speeds: on SPEED ELEMENT FIFO LATENCY FAULT... < statements
on() {
  rm -f unit ports/com1
  ovl-unit --memory memory --link unit --speed "$1" --pace off --history lines:200 > /dev/null 2> complaints &
  started+=($!)
  await unit
  ovl-line "$(readlink unit)" ports/com1 --fifo "$3" --latency "$4" "${@:5}" > carried &
  started+=($!)
  await ports/com1
  local result=0
  {
    printf 'setting Version "V1400"\nsetting Release "R12"\nfolder "."\nport real\nstart\nclick cmdConnect\n'
    printf 'pick OpBaud %s\n' "$2"
    cat
  } | ovl-script > said 2>&1 || result=$?
  end_programs
  return "$result"
}

# row SPEED ELEMENT FIFO LATENCY [FAULT]...
row() {
  local outcome=right upload download history scan
  rm -f memory image again
  upload=$(try "$@" <<< $'click cmdSET\nupload image')
  read -r _ _ _ up _ < carried
  if [ "$upload" = "done" ] && ! ovl-script --firmware V1400R12 diff image memory > /dev/null; then upload=differs; fi
  download=$(try "$@" <<< $'click cmdSET\nupload image\nset DECIMAL_POINT_BAK 01\ndownload')
  read -r _ down _ < carried
  history=$(try "$@" << END
click cmdSET
click CmdUpDow(4)
expect var RemoteHeld true within 3000
wait 400
answer history
click CmdUpDow(3)
expect var HistoryPending false within 60000
END
  )
  scan=$(try "$@" << END
click cmdSET
click CmdUpDow(4)
expect var RemoteHeld true within 3000
click cmdDisConnect
click cmdConnect
pick OpBaud 0
click BaudrateCMD
expect var ScanActive false within 30000
expect var RemoteHeld true
END
  )
  [ $# -gt 4 ] || [ "$upload$download$history$scan" = donedonedonedone ] || outcome=WRONG
  [ "$outcome" = right ] || status=1
  printf '%7s %5s %5s ms  %-20s %-7s %5s  %-7s %5s  %-7s %-7s %s\n' "$1" "$3" "$4" "${*:5}" "$upload" "$up" "$download" \
    "$down" "$history" "$scan" "$outcome"
}

try() {
  if on "$@"; then echo "done"; else echo "failed"; fi
}

printf '%7s %5s %8s  %-20s %-13s  %-13s  %-7s %-7s\n' speed FIFO latency faults upload download history scan
for speed in "9600 3" "115200 9"; do
  for ends in "1 0" "16 0" "64 0" "64 1" "64 16" "4096 1" "4096 16"; do
    read -ra words <<< "$speed $ends"
    row "${words[@]}"
  done
done
for fault in "--lost 1" "--doubled 1" "--lost 20" "--doubled 20"; do
  read -ra words <<< "115200 9 64 16 $fault"
  row "${words[@]}"
done
exit "$status"
