# Locales that write numbers with commas. The program has no texts in French, so the titles of its windows are as usual.
# shellcheck shell=bash disable=SC2154  # what run.sh and acts.sh set
for locale in de_DE fr_FR; do
  # A warning makes its status 1 as well.
  localedef --no-archive -i "$locale" -f UTF-8 "$place/$locale.UTF-8" 2> "$place/$locale.log" || true
  [ -d "$place/$locale.UTF-8" ] || cat "$place/$locale.log" >&2
done
german=(LOCPATH="$place" LANG=de_DE.UTF-8 LC_ALL=de_DE.UTF-8)
french=(LOCPATH="$place" LANG=fr_FR.UTF-8 LC_ALL=fr_FR.UTF-8)

# Everything that the programs write without a window: outputs FOLDER [VARIABLE=VALUE]...
outputs() {
  mkdir "$1"
  local image=$images/V1400/R12/NCR.bin
  cp "$image" "$1/V1400R12.bin"
  touch -d '2026-03-05 14:07:09' "$1/V1400R12.bin"
  (
    export "${@:2}"
    cd "$1" || exit
    ovl-script --firmware V1400R12 export "$image" > text
    ovl-script --firmware V1400R12 import text imported
    ovl-script --firmware V1400R12 --json check "$image" > checks || true
    ovl-script --firmware V1400R12 check "$image" > findings || true
    ovl-script --firmware V1400R12 checksum "$image" > sum
    ovl-script --firmware V1400R12 diff "$image" "$images/V1400/R12/IBM.bin" > difference || true
    QT_QPA_PLATFORM=offscreen ovl --firmware V1400R12 --sheet sheet.html V1400R12.bin
    ovl-unit --help > help
    cd .. || exit
    by_script << END > "$1/changes"
answer "$image"
click OpenMenu
click cmdTitle
type frmSetEXCPSTR.Text1 "1,5 KG 2.50"
key frmSetEXCPSTR.Text1 Enter
pick ComboDIP(3) "ON"
click cmdSetRange
type frmSetRange.Range_Hi "1234"
leave frmSetRange.Range_Hi
type frmSetRange.SubRange_Hi "56"
leave frmSetRange.SubRange_Hi
click frmSetRange.cmdSetRange
show TextRANGE(0)
changes
dump "$1/image"
stream "$1/stream"
advice
check
export "$1/exported"
backup "$1/backup"
answer "$1/saved"
click menuSave
END
  )
}

same_outputs() {
  set_up_site "$images"
  [ "$(env "${german[@]}" locale decimal_point)" = , ]
  outputs plain LC_ALL=C.UTF-8
  outputs german "${german[@]}"
  diff -r plain german >&2 || fail "the outputs differ"
  echo "$(find german -type f | wc -l) files are equal byte for byte"
}

same_session() {
  set_up_site "$images"
  start_display
  start_unit --image "$images/V1400/R12/NCR.bin"
  cp memory before
  [ "$(env "${french[@]}" locale decimal_point)" = , ]
  open_program "${french[@]}"
  set_title '1,5 KG 2.50'
  titled '1,5 KG 2.50' kept
  hold_remote_mode "$changed_window"
  begin_download
  finish_download
  cp memory before
  key alt+7
  enter_remote alt+r
  begin_upload
  finish_upload
  echo "download and upload are right"
}

row "de_DE.UTF-8 beside C.UTF-8" "exports, JSON, sheet, texts, Save" same_outputs
row "fr_FR.UTF-8" "change, download, upload" same_session
