# Two programs at once.
# shellcheck shell=bash disable=SC2154  # what run.sh and acts.sh set
here_first() { DISPLAY=$first_display; }
here_second() { DISPLAY=$second_display; }

two_displays() {
  start_display
  second_display=$DISPLAY
  start_display
  first_display=$DISPLAY
}

two_programs() {
  two_displays
  open_program
  first=$program
  here_second
  open_program
  second=$program
}

both_keep_changes() {
  set_up_site "$images"
  two_programs
  here_first
  set_title 'SHOP A'
  here_second
  set_title 'SHOP B'
  wait_until test -e 'site/unsaved V1400R12 1.bin' -a -e 'site/unsaved V1400R12 2.bin'
  titled 'SHOP A' a
  titled 'SHOP B' b
  kill_program "$first"
  here_first
  open_program
  cmp 'site/rescued V1400R12 1.bin' a
  cmp 'site/unsaved V1400R12 2.bin' b
  kill_program "$second"
  here_second
  open_program
  cmp 'site/rescued V1400R12 1.bin' a
  cmp 'site/rescued V1400R12 2.bin' b
  echo "each program had a copy of its own, and each was rescued"
}

all_start_at_once() {
  set_up_site "$images"
  local starts=() each
  titled 'SHOP A' kept
  for round in $(seq 5); do
    cp kept 'site/unsaved V1400R12 1.bin'
    starts=()
    for each in 1 2 3 4; do
      start_program QT_QPA_PLATFORM=offscreen DISPLAY=
      starts+=("$program")
    done
    wait_until test -e "site/rescued V1400R12 $round.bin"
    sleep 1
    for each in "${starts[@]}"; do calm "$each" && kill -KILL "$each"; done
    cmp "site/rescued V1400R12 $round.bin" kept
    [ "$(find site -name '*rescued*' | wc -l)" = "$round" ]
    [ ! -e 'site/unsaved V1400R12 1.bin' ]
  done
  echo "one of the four rescued the copy, 5 times of 5"
}

one_port() {
  set_up_site "$images"
  two_displays
  open_with_unit
  hold_remote_mode "$window"
  begin_upload
  here_second
  open_program
  key alt+7 alt+s
  wait_for_window 'Communication Setting'
  key Tab Down Return
  wait_for_window 'OVL Software'
  key Return
  by_script > refused << 'END' || true
port real
click cmdConnect
pick Comport_Select 1
click cmdSET
END
  grep -q 'box.*Device or resource busy' refused
  here_first
  finish_upload
  kill_program "$program"
  echo "the second says \"Device or resource busy\", the upload of the first is right"
}

# Picks a firmware in the menu "Version" as soon as the file "now" is there.
pick_firmware() {
  {
    printf 'store system\nfolder "site"\nstart\n'
    while [ ! -e now ]; do sleep 0.01; done
    printf 'click %s\n' "$1"
  } | XDG_CONFIG_DIRS=$PWD/etc ovl-script
}

one_settings_file() {
  set_up_site "$images"
  mkdir -p etc/ORB
  local file='etc/ORB/OVL Software.conf' pair mixed=0 last
  for _ in $(seq 40); do
    rm -f now
    cp 'store/ORB/OVL Software.conf' "$file"
    pick_firmware V1310R1mnu > first.said 2>&1 &
    pick_firmware V1300R14mnu > second.said 2>&1 &
    sleep 0.5
    touch now
    wait
    pair=$(LC_ALL=C sort "$file" | tr -d '\n')
    case $pair in
      'Release=R1Version=V1310[General]' | 'Release=R14Version=V1300[General]') ;;
      *) mixed=$((mixed + 1)) last=$pair ;;
    esac
  done
  grep -q 'V1310R1 WILL' first.said && grep -q 'V1300R14 WILL' second.said
  [ "$mixed" = 0 ] || fail "a mixture in $mixed of 40: $last"
  echo "one of the two firmware, 40 times of 40"
}

save() {  # TITLE TIMES FILE
  {
    printf 'click cmdTitle\ntype frmSetEXCPSTR.Text1 "%s"\nkey frmSetEXCPSTR.Text1 Enter\n' "$1"
    for _ in $(seq "$2"); do
      printf 'answer "%s"\nclick menuSave\nexpect box "Save Completed.        "\n' "$3"
    done
  } | by_script
}

one_saved_file() {
  set_up_site "$images"
  save 'SHOP A' 1 a > said
  save 'SHOP B' 1 b > said
  ! cmp -s a b
  save 'SHOP A' 2000 one.bin > a.said &
  local first=$! looks=0
  save 'SHOP B' 2000 one.bin > b.said &
  local second=$!
  wait_until test -e one.bin
  while kill -0 "$first" 2> /dev/null || kill -0 "$second" 2> /dev/null; do
    cat one.bin > seen
    cmp -s seen a || cmp -s seen b || fail "the file is neither of the two"
    looks=$((looks + 1))
  done
  wait "$first"
  wait "$second"
  [ -z "$(find . -name '*.new')" ]
  echo "whole in all of $looks looks during 4000 saves"
}

# The upload of a program, with half a second between its writing of the last upload and its reading. Another one
# stores its own then.
one_last_upload() {
  set_up_site "$images"
  start_unit --image "$images/V1400/R12/NCR.bin"
  local last=site/V1400/upload.bin
  cat > act << END
folder "site"
setting Version "V1400"
setting Release "R12"
start
$(hold_by_script)
click CmdUpDow(0)
wait 9000
show frmOK_buttom.Label1
var StatusNote
stream "taken"
END
  {
    wait_until test -e "$last"
    cp "$images/V1400/R12/GENERIC.bin" other
    mv other "$last"
  } &
  strace --output calls -P "$last" -e trace=openat -e inject=openat:delay_enter=500000 ovl-script act > acted
  cat acted >&2
  cmp -s "$last" "$images/V1400/R12/GENERIC.bin"
  if grep -q 'Upload Completed' acted; then
    cmp -s taken memory || fail "the upload of another program was taken for its own"
    echo "it took its own"
    return
  fi
  grep -q "^StatusNote = .*$last: another program" acted || fail "no reason is given"
  echo "it takes nothing and says $(sed -n 's/^StatusNote = //p' acted)"
}

row "one program folder" "both change; each is killed, another starts" both_keep_changes
row "one program folder" "four start at once, a copy is left" all_start_at_once
row "one port" "one uploads, the other sets the same port" one_port
row "one settings file" "both pick a firmware at the same time" one_settings_file
row "one file" "both save it at the same time" one_saved_file
row "one last upload" "another one stores its own while it is read" one_last_upload
