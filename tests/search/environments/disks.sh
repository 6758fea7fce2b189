# A program folder and a folder of the settings on a disk that takes nothing.
# shellcheck shell=bash disable=SC2154  # what run.sh and acts.sh set

open_disk() { mount -t tmpfs -o size=2m disk "$1"; }
close_disk() {  # FOLDER read-only|full
  case $2 in
    read-only) mount -o remount,ro "$1" ;;
    full) cat /dev/zero > "$1/filler" 2> /dev/null || true ;;
  esac
}
declare -A reasons=([read-only]='Read-only file system' [full]='No space left on device')

site_on_disk() {
  mkdir site ports
  open_disk site
  ln -s ../ports site/ports
  set_up_site "$images"
}

# What the model reports about a folder that takes nothing.
reported() {
  by_script << END
$(hold_by_script)
var ImageTouched
click CmdUpDow(0)
wait 8000
var StatusNote
var UploadApplying
answer "site/kept.bin"
click menuSave
var StatusNote
END
}

program_folder() {
  site_on_disk
  echo kept > site/V1400/upload.bin
  close_disk site "$1"
  start_unit --image "$images/V1400/R12/NCR.bin"
  cp memory before
  reported > report || true
  cat report >&2
  grep -q "StatusNote = .*site/V1400/upload.bin: ${reasons[$1]}" report
  grep -q "StatusNote = .*site/kept.bin.*: ${reasons[$1]}" report
  grep -q 'NoFile Save' report
  cmp memory before
  start_display
  open_program
  set_title 'SHOP 12'
  sleep 1.5
  calm "$program"
  key ctrl+shift+s
  wait_for_window Save
  type_text "$PWD/backup"
  key Return
  titled 'SHOP 12' expected
  wait_until cmp -s backup.bin expected
  [ "$(cat site/V1400/upload.bin)" = kept ] && [ ! -s site/kept.bin ]
  echo "starts; upload and Save give path and reason; a backup elsewhere is whole"
}

settings_folder() {
  set_up_site "$images"
  mv store kept
  mkdir store
  open_disk store
  cp -r kept/. store
  close_disk store "$1"
  start_display
  open_program
  key alt+v Down Right Return
  wait_for_window 'OVL Software'
  key Return
  no_longer_running "$program"
  cmp kept/ORB/*.conf store/ORB/*.conf
  open_program
  echo "the choice ends with a message, the settings are whole, the next start works"
}

no_settings() {
  set_up_site "$images"
  rm -r store
  mkdir store
  open_disk store
  close_disk store "$1"
  start_display
  start_program
  wait_for_window 'Registry Error.'
  key Return
  wait_until ended_or_asks
  echo "a message, and it ends"
}
ended_or_asks() {
  ! ended "$program" || return 0
  key Return
  ended "$program"
}

for disk in read-only full; do
  row "program folder on $disk disk" "start, change, upload, Save, Save Backup" program_folder "$disk"
  row "settings on $disk disk" "another firmware is picked; the next start" settings_folder "$disk"
  row "no settings, $disk disk" "start" no_settings "$disk"
done
