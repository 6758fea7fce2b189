# What the sessions on the keyboard share: a display, the program, the unit, and how they are used. It works in the
# current folder. `fail` is a function of the script that includes this.
# shellcheck shell=bash disable=SC2034  # they use what is set here

set_up_site() {  # IMAGES
  mkdir -p site/V1400 store/ORB
  touch conversation
  ln -s "$1/V1400/R12" site/V1400
  printf '[General]\nVersion=V1400\nRelease=R12\n' > 'store/ORB/OVL Software.conf'
}

# The window manager gives the keyboard to the window that opens, as a desktop does.
start_display() {
  rm -f display
  Xvfb -displayfd 3 -noreset -r 3> display 2> said &
  x_server=$!
  wait_until test -s display
  DISPLAY=:$(< display)
  export DISPLAY
  matchbox-window-manager -kbdconfig /dev/null 2>> said &
  wait_until eval 'xdotool get_num_desktops > /dev/null 2>&1'
}

wait_until() {
  for _ in $(seq 600); do
    "$@" && return
    sleep 0.1
  done
  fail "$*"
}

key() { xdotool key "$@"; }
type_text() { xdotool type "$1"; }
title() { xdotool getwindowfocus getwindowname 2> /dev/null || true; }
# shellcheck disable=SC2053  # it takes a pattern
in_front() { [[ $(title) == $1 ]]; }
wait_for_window() { wait_until in_front "$1"; }

# What the last key did is on the screen when the help has come and gone.
settle() {
  local front
  front=$(title)
  key F1
  wait_for_window Help
  key Escape
  wait_for_window "$front"
}

start_unit() {  # [OPTION]...
  rm -f port
  ovl-unit --memory memory --link site/ports/com2 --log conversation "$@" > port 2>> said &
  unit=$!
  wait_until test -s port
}

# It complains with its exit status.
end_unit() {
  kill "$unit"
  wait "$unit" || fail "the unit reported mistakes"
}

start_program() {  # [VARIABLE=VALUE]...
  env -i HOME="$PWD" XDG_RUNTIME_DIR="$PWD" LANG=C.UTF-8 DISPLAY="${DISPLAY:-}" \
    LSAN_OPTIONS="suppressions=$PWD/leaks:print_suppressions=0" "$@" \
    "$(command -v ovl)" --folder "$PWD/site" --store "$PWD/store" 2>> said &
  program=$!
}

# The window of the ports begins with Comport 1.
connect_comport_2() {
  key alt+s
  wait_for_window 'Communication Setting'
  key Tab Down Return
  wait_for_window "$1"
}

# Presses "Remote" with these keys, and waits until the program asks the unit whether it is still there. A
# transfer in the first 0.3 seconds would be taken for a wrong answer to "Remote".
enter_remote() {
  local asked
  asked=$(count ENQ)
  key "$@"
  wait_until counts_more ENQ "$asked"
}

# A process that has ended keeps its number until its parent asks for it.
ended() { [ ! -e "/proc/$1/exe" ]; }
wait_for_end() {
  wait_until ended "$program"
  wait "$program" || fail "the program ended with $?"
}

count() { grep -c -- "$1" conversation || true; }
counts_more() { [ "$(count "$1")" -gt "$2" ]; }
heard() { grep -q -- "$1" conversation; }

# What the program makes of these statements.
by_script() {
  { printf '%s\n' 'folder "site"' 'setting Version "V1400"' 'setting Release "R12"' start; cat; } | ovl-script
}

# Characters that the unit has read and written.
passed() { awk '/char/ { all += $2 } END { print all }' "/proc/$unit/io"; }
passed_more() { [ "$(passed)" -ge "$1" ]; }
