# The program or the unit is stopped, as in a suspended computer, and goes on.
# shellcheck shell=bash disable=SC2154  # what run.sh and acts.sh set
stop_for() {  # SECONDS PROCESS
  kill -STOP "$2"
  sleep "$1"
  kill -CONT "$2"
}

# stop WHAT SECONDS: what is "program" or "unit"
stop() { stop_for "$2" "${!1}"; }

# The window of the ports begins with the port that was set last.
reconnect() {  # WINDOW
  key alt+s
  wait_for_window 'Communication Setting'
  key Return
  wait_for_window "$1"
}

shows_end() { in_front 'Program Download' || in_front '- *'; }

# The act has ended with its window, or a message was confirmed: ended_well WINDOW
ended_well() {
  wait_until shows_end
  in_front 'Program Download' && return
  said_window=$(title)
  key Return
  wait_for_window "$1"
  return 1
}

remote_request() {
  set_up_site "$images"
  start_display
  open_with_unit
  key alt+7
  connect_comport_2 "$window"
  key alt+r
  stop "$@"
  recovers "$window"
}

# Remote mode is held now, or there is a message and the second trial succeeds.
recovers() {  # WINDOW
  local asked right
  asked=$(count ENQ)
  sleep 8
  if in_front "$1" && counts_more ENQ "$asked"; then
    right="remote mode is held"
  else
    said_window=$(title)
    [[ $said_window == '- '* ]] || fail "no message"
    key Return
    wait_for_window "$1"
    right="a message \"$said_window\", the next trial succeeds"
    reconnect "$1"
    enter_remote alt+r
  fi
  begin_upload
  finish_upload
  echo "$right, the next upload is right"
}

in_upload() {
  set_up_site "$images"
  start_display
  open_with_unit
  hold_remote_mode "$window"
  begin_upload
  stop "$@"
  if ended_well "$window"; then
    finish_upload
    echo "the upload is right"
    return
  fi
  [ ! -e site/V1400/upload.bin ]
  cmp memory before
  echo "a message \"$said_window\", nothing was taken"
}

in_download() {
  set_up_site "$images"
  start_display
  hold_with_change
  begin_download
  stop "$@"
  if ended_well "$changed_window"; then
    sleep 3
    if ! cmp -s memory before; then
      finish_download
      wait_for_window "$window"
      echo "the download is right"
      return
    fi
    key Return
    wait_for_window "$changed_window"
    enter_remote alt+r
    begin_download
    finish_download
    echo "the unit refused it, the change still counts as a change, the next download is right"
    return
  fi
  cmp memory before
  sleep 31
  reconnect "$changed_window"
  enter_remote alt+r
  begin_download
  finish_download
  echo "a message \"$said_window\", the unit is as before, the next download is right"
}

in_remote_mode() {
  set_up_site "$images"
  start_display
  open_with_unit
  hold_remote_mode "$window"
  stop "$@"
  sleep 31
  recovers "$window"
}

# A scan hears a unit only after remote mode was held.
in_scan() {
  set_up_site "$images"
  start_display
  open_with_unit
  hold_remote_mode "$window"
  key alt+s
  settle
  kill "$unit"
  wait "$unit" || true
  start_unit --speed 19200
  key alt+s
  wait_for_window 'Communication Setting'
  key alt+b
  wait_for_window 'Scan Baudrate'
  sleep 2
  stop "$@"
  wait_until scan_ended
  if in_front 'OVL Software'; then
    echo "a message that no unit answers"
    return
  fi
  wait_for_window "$window"
  begin_upload
  finish_upload
  echo "the scan finds the unit, the next upload is right"
}
scan_ended() { counts_more ENQ 0 || in_front 'OVL Software'; }

in_history() {
  set_up_site "$images"
  start_display
  for line in $(seq 200); do printf '%05d 01-01-26 10:00:00 NO SALE\r\n' "$line"; done > log
  start_unit --image "$images/V1400/R12/NCR.bin" --history log
  open_program
  hold_remote_mode "$window"
  local from
  from=$(passed)
  key alt+l
  wait_until passed_more $((from + 3000))
  stop "$@"
  wait_until asks_or_says
  if ! in_front Save; then
    echo "a message \"$(title)\""
    return
  fi
  type_text "$PWD/history.txt"
  key Return
  wait_until test -s history.txt
  { printf 'OVLH\r\n'; cat log; printf '\r\n'; } | cmp - history.txt
  echo "the history is right"
}
asks_or_says() { in_front Save || in_front '- *'; }

in_save() {
  set_up_site "$images"
  start_display
  open_program
  set_title 'SHOP A'
  save_as saved.bin
  cp saved.bin first
  set_title 'SHOP B'
  titled 'SHOP B' second
  key ctrl+shift+s
  wait_for_window Save
  type_text "$PWD/saved.bin"
  key Return
  sleep 1  # Qt asks whether to replace it, in a window of the same title
  key alt+y
  stop "$@" &
  sleep 1
  cmp -s saved.bin first || cmp -s saved.bin second || fail "neither the old file nor the new one"
  wait_until cmp -s saved.bin second
  wait_for_window "$changed_window"
  echo "whole while it is stopped, then the new one"
}
save_as() {
  key ctrl+shift+s
  wait_for_window Save
  type_text "$PWD/$1"
  key Return
  wait_until test -s "$1"
  wait_for_window "$changed_window"
}

open_dialog() {
  set_up_site "$images"
  start_display
  open_program
  set_title 'SHOP A'
  key ctrl+o
  wait_for_window Open
  titled 'SHOP A' kept
  wait_until cmp -s kept 'site/unsaved V1400R12 1.bin'
  type_text "$images/V1400/R12/NCR.bin"
  stop "$@" &
  sleep 1
  key Return
  wait_for_window 'NCR.bin - OVL Software'
  echo "the changes have a copy, the file opens"
}

for who in program unit; do
  row "$who stopped for 5 s" "remote mode is requested" remote_request "$who" 5
  row "$who stopped for 5 s" "upload" in_upload "$who" 5
  row "$who stopped for 5 s" "download" in_download "$who" 5
  row "$who stopped for 5 s" "baud rate scan" in_scan "$who" 5
  row "$who stopped for 5 s" "history" in_history "$who" 5
  row "$who stopped for 60 s" "remote mode is held" in_remote_mode "$who" 60
  row "$who stopped for 60 s" "upload" in_upload "$who" 60
  row "$who stopped for 60 s" "download" in_download "$who" 60
done
row "program stopped for 5 s" "Save Backup over a file" in_save program 5
row "program stopped for 5 s" "dialog of Open" open_dialog program 5
