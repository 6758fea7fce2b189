#!/usr/bin/env bash
# Asks a program what every program answers: command_line.sh PROGRAM VERSION
# There is no display.
set -euo pipefail
program=$1
name=$(basename "$program")
place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
cd "$place"
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM

# Runs the program, which must end with the status and print only to this stream.
prints() {
  local status=0
  "$program" "${@:3}" > out 2> err || status=$?
  local silent=out
  [ "$2" = out ] && silent=err
  [ "$status" = "$1" ] && [ -s "$2" ] && [ ! -s $silent ] && return
  echo "$name ${*:3}: status $status, not $1, or text not on std$2 alone:" >&2
  cat out err >&2
  exit 1
}

fail() {
  echo "$name: $*" >&2
  cat out err >&2
  exit 1
}

prints 0 out --version
[ "$(cat out)" = "$name $2" ] || fail "the version is not $2"
prints 0 out -h
cp out short
prints 0 out --help
cmp -s out short || fail "-h is not --help"
[[ $(head -n 1 out) == "Usage: $name "* ]] || fail "no usage line"

prints 2 err --no-such-option
[[ $(cat err) == "$name: "*"no-such-option"*"Try \"$name --help\"." ]] || fail "the wrong option is not named"

[ "$name" = ovl ] || exit 0
prints 1 err
[[ $(cat err) == "ovl: OVL Software needs a display "* && $(wc -l < err) = 1 ]] || fail "not one sentence"

"$(dirname "$program")/ovl-images" . V1300R14 > out
cp V1300/R14/GENERIC.bin "V1300R14 site.bin"
"$program" --sheet sheet.pdf --paper Letter "V1300R14 site.bin" > out 2> err && [ "$(head -c 5 sheet.pdf)" = %PDF- ] || fail "no sheet"
prints 1 err --sheet sheet.pdf missing.toml
[[ $(cat err) == "ovl: the sheet cannot be written: missing.toml: "* ]] || fail "the missing file is not named"
echo none > none.bin
prints 1 err --sheet sheet.pdf none.bin
[[ $(cat err) == "ovl: the sheet cannot be written: none.bin: "?* ]] || fail "the message does not name none.bin and the reason"
prints 2 err --sheet sheet.pdf --guide guide.pdf "V1300R14 site.bin"
prints 2 err --sheet sheet.doc "V1300R14 site.bin"
prints 2 err --paper A4
