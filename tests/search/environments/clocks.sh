# The clock of the system jumps. The monotonic clock does not, as on a real system. Only the
# program sees it: the unit keeps its clock, and so does the disk.
# shellcheck shell=bash disable=SC2154  # what run.sh and acts.sh set
faketime=$(dpkg -L libfaketime | grep 'libfaketime.so.1$')

with_clock() {
  jump +0
  fake=(LD_PRELOAD="$faketime" FAKETIME_TIMESTAMP_FILE="$PWD/offset" FAKETIME_NO_CACHE=1 FAKETIME_DONT_FAKE_MONOTONIC=1
    DONT_FAKE_MONOTONIC=1)
}
jump() { echo "$1" > offset; }
date_with() { date -d "$1" +%m-%d-%y; }

# The unit's clock follows the jump within the ten seconds after which the program reads its clock again.
jumps_idle() {
  set_up_site "$images"
  with_clock
  start_display
  start_unit --clock-file clock
  open_program "${fake[@]}"
  local offset
  for offset in -1 +1; do
    jump "${offset}d"
    sleep 13
    calm "$program"
    if [ "$offset" = -1 ]; then hold_remote_mode "$window"; else enter_remote alt+r; fi
    key alt+i
    wait_for_window 'OVL Software'
    key Return
    wait_for_window "$window"
    grep -q "$(date_with "$offset day")" clock || fail "the unit got $(cat clock)"
  done
  echo "the unit gets the time of the clock after each jump"
}

jumps_in_remote_mode() {
  set_up_site "$images"
  with_clock
  start_display
  open_program "${fake[@]}"
  start_unit
  hold_remote_mode "$window"
  local offset asked
  for offset in -1d +1d +0; do
    jump "$offset"
    asked=$(count ENQ)
    sleep 13
    counts_more ENQ $((asked + 1)) || fail "the program does not ask any more"
    [ "$(count ENQ)" -lt $((asked + 4)) ] || fail "the program asks too often"
    in_front "$window"
  done
  echo "the program asks every six seconds as before"
}

jumps_in_transfers() {
  set_up_site "$images"
  with_clock
  start_display
  titled 'SHOP 12' kept
  start_unit --image "$images/V1400/R12/NCR.bin"
  open_program "${fake[@]}"
  set_title 'SHOP 12'
  hold_remote_mode "$changed_window"
  begin_download
  jump -1d
  sleep 1
  jump +1d
  finish_download
  key alt+7
  enter_remote alt+r
  cp memory before
  begin_upload
  jump +0
  sleep 1
  jump -1d
  finish_upload
  echo "download and upload are right"
}
row "clock jumps by a day" "the clock of the unit is set after each jump" jumps_idle
row "clock jumps by a day" "remote mode is held" jumps_in_remote_mode
row "clock jumps by a day" "download and upload" jumps_in_transfers
