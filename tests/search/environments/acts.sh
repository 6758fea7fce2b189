# Acts on the windows that several environments need.
# shellcheck shell=bash disable=SC2034,SC2119,SC2120,SC2154  # the groups use what is here

window='GENERIC - OVL Software' changed_window='GENERIC\* - OVL Software' uploaded_window='Uploaded ??:?? - OVL Software'

# The program with its window: open_program [VARIABLE=VALUE]...
open_program() {
  start_program "$@"
  running+=("$program")
  wait_for_window "$window"
}

kill_program() {
  kill -KILL "$1"
  no_longer_running "$1"
}

no_longer_running() {
  local still=() each
  for each in "${running[@]}"; do [ "$each" = "$1" ] || still+=("$each"); done
  running=("${still[@]}")
  wait_until ended "$1"
}

# Changes the title of the configuration: set_title TITLE [WINDOW]
set_title() {
  key alt+6 alt+s
  wait_for_window 'TITLE SETUP'
  type_text "$1"
  key Return
  wait_for_window "${2:-$changed_window}"
}

# The default image with this title as a file: titled TITLE FILE
titled() {
  by_script << END
click cmdTitle
type frmSetEXCPSTR.Text1 "$1"
key frmSetEXCPSTR.Text1 Enter
stream "$2"
END
}

# The text of the message in front. Qt copies it whole.
message() {
  key ctrl+c
  sleep 0.3
  xclip -o -selection clipboard
}
says() { message | grep -qF -- "$1" || fail "the message does not say \"$1\""; }

# The program is connected to a unit with the configuration of another register. That is the file "before".
open_with_unit() {  # [OPTION]...
  start_unit --image "$images/V1400/R12/NCR.bin" "$@"
  cp memory before
  open_program
}

hold_remote_mode() {  # WINDOW
  key alt+7
  connect_comport_2 "$1"
  enter_remote alt+r
}

# The changed configuration is the file "kept".
hold_with_change() {
  titled 'SHOP 12' kept
  open_with_unit "$@"
  set_title 'SHOP 12'
  hold_remote_mode "$changed_window"
}

# Half of the configuration has passed.
begin() {  # KEY COMMAND
  local from
  from=$(passed)
  key "$1"
  wait_until heard "> $2"
  wait_until passed_more $((from + 2400))
}
begin_upload() { begin alt+u /LU; }
begin_download() { begin alt+d /LD; }

finish_upload() {
  wait_for_window 'Program Download'
  key Return
  wait_for_window "$uploaded_window"
  cmp site/V1400/upload.bin before
}

finish_download() {
  wait_for_window 'Program Download'
  key Return
  wait_until cmp -s memory kept
}

# The statements that put the unit into remote mode, for a script of ovl-script.
hold_by_script() {
  cat << 'END'
port real
click cmdConnect
pick Comport_Select 1
click cmdSET
click CmdUpDow(4)
expect var RemoteHeld true within 3000
wait 400
END
}
