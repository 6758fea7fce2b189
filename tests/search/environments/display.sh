# The display goes away.
# shellcheck shell=bash disable=SC2154  # what run.sh and acts.sh set

# loses_display ACT: the act is begun, then the display ends.
loses_display() {
  set_up_site "$images"
  start_display
  hold_with_change
  "$1"
  kill -KILL "$x_server"
  no_longer_running "$program"
  local result=0
  wait "$program" || result=$?
  [ "$result" -lt 128 ] || fail "it ended with status $result"
  cmp memory before
  start_display
  open_program
  cmp 'site/rescued V1400R12 1.bin' kept
  [ ! -e site/V1400/upload.bin ]
  key alt+7
  connect_comport_2 "$window"
  sleep 31
  enter_remote alt+r
  begin_upload
  finish_upload
  echo "status $result, the unit is as before, the changes were rescued, the next upload is right"
}

row "display goes away" "in an upload" loses_display begin_upload
row "display goes away" "in a download" loses_display begin_download
row "display goes away" "in remote mode" loses_display true
