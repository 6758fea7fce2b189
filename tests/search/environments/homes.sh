# A home that is missing or takes nothing.
# shellcheck shell=bash disable=SC2154  # what run.sh and acts.sh set

# Only the current folder takes something: in_closed_system COMMAND...
in_closed_system() {
  # shellcheck disable=SC2016  # the inner shell expands it
  unshare --mount sh -c 'mount --rbind "$PWD" "$PWD" && cd "$PWD" && mount -o remount,bind,ro / && exec "$@"' sh "$@"
}

# The program has no folder to work in: no_folder REASON [VARIABLE=VALUE]...
no_folder() {
  set_up_site "$images"
  mkdir home
  mount -t tmpfs -o ro none home
  start_display
  in_closed_system env -i LANG=C.UTF-8 DISPLAY="$DISPLAY" "${@:2}" "$(command -v ovl)" --store "$PWD/store" 2>> said &
  program=$!
  wait_for_window 'OVL Software'
  key Return
  local result=0
  wait "$program" || result=$?
  [ "$result" = 1 ] || fail "status $result"
  grep -q "^/.*: $1" said || fail "no path and reason"
  echo "a message \"$(grep "^/.*: $1" said)\", status 1"
}

given_folder() {
  set_up_site "$images"
  start_display
  start_unit --image "$images/V1400/R12/NCR.bin"
  cp memory before
  env -i LANG=C.UTF-8 DISPLAY="$DISPLAY" "$@" "$(command -v ovl)" --folder "$PWD/site" --store "$PWD/store" 2>> said &
  program=$!
  running+=("$program")
  wait_for_window "$window"
  hold_remote_mode "$window"
  begin_upload
  finish_upload
  echo "starts with --folder, the upload is right"
}

row "HOME on a read-only disk" "start without --folder" no_folder 'Read-only file system' HOME="$place/row/home" XDG_RUNTIME_DIR="$place/row"
row "HOME is a file" "start without --folder" no_folder 'Not a directory' HOME=/etc/passwd XDG_RUNTIME_DIR="$place/row"
row "HOME missing" "start without --folder" no_folder 'Read-only file system'
row "HOME missing" "start, upload" given_folder XDG_RUNTIME_DIR="$place/row"
row "HOME does not exist" "start, upload" given_folder HOME=/nonexistent XDG_RUNTIME_DIR="$place/row"
row "XDG_RUNTIME_DIR missing" "start, upload" given_folder HOME="$place/row"
row "XDG_RUNTIME_DIR is no folder" "start, upload" given_folder HOME="$place/row" XDG_RUNTIME_DIR=/nonexistent/run
