#!/usr/bin/env bash
# Types into a shell and compares what it offers: completion.sh PROGRAMS COMPLETION
set -euo pipefail
# shellcheck source=packaging/completion.bash
. "$2"
place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
cd "$place"
mkdir folder
touch "fo file"
PATH=$1:$PATH
compopt() { :; }  # works only inside the shell's own completion

# The shell must offer these words, divided by "|", when the last word is completed.
offers() {
  local expected=$1
  shift
  COMP_WORDS=("$@") COMP_CWORD=$(($# - 1)) COMPREPLY=()
  _ovl_software "$1"
  local offered
  offered=$(IFS='|' && echo "${COMPREPLY[*]}")
  [ "$offered" = "$expected" ] && return
  echo "$*: offered \"$offered\", not \"$expected\"" >&2
  exit 1
}

offers '--firmware|--folder' ovl --f
offers '--firmware|--folder|--help|--json|--partial|--version' ovl-script --
offers 'check|checksum|diff|export|fo file|folder|import' ovl-script ''
offers 'export' ovl-script e
offers 'fo file|folder' ovl-script export fo
offers '' ovl-script export e
offers '--list' ovl-setup --l
offers 'folder' ovl --folder fo
offers 'fo file|folder' ovl fo
offers 'folder' ovl-images fo
offers 'folder' ovl-setup --store fo
offers 'fo file|folder' ovl-unit --log = fo
offers 'off|on' ovl-unit --pace = o
offers 'Letter' ovl --paper L
offers '115200|1200|14400|19200' ovl-unit --speed 1
offers 'silent|stall' ovl-unit --fault s
offers '' ovl-unit --seed ''
