# Reads the unit, changes it on five tabs, looks at the changes, takes two back, writes the unit, and backs it up.
start_unit --image site/V1400/R12/NCR.bin
cp memory before

# The three changes that stay, the two that are taken back, and what the window of the changes shows.
by_script > listed << 'END'
answer "before"
click OpenMenu
pick ComboReg "STAR EPOS"
pick ComboDIP(3) "ON"
click cmdSetExcpstr
type frmSetEXCPSTR.Text1 "VOID"
key frmSetEXCPSTR.Text1 Enter
pick ComboCOMM(3) "EVEN"
stream "kept"
pick ComboALM(2) "NC"
pick ComboTD(2) "DD/MM/YY"
changes
END
[ "$(wc -l < listed)" = 6 ]

shows_listed() {
  xclip -o -selection clipboard 2> /dev/null |
    awk -F '\t' '{ printf "%s: %s: \"%s\" -> \"%s\"\n", $1, $2, $3, $4 }' | cmp -s - listed
}

start_program
wait_for_window 'GENERIC - OVL Software'
key alt+7
connect_comport_2 'GENERIC - OVL Software'
enter_remote alt+r
key alt+u
wait_for_window 'Program Download'
key Return
wait_for_window 'Uploaded ??:?? - OVL Software'
cmp site/V1400/upload.bin before

key alt+1 ctrl+f
type_text 'star e'
key Down Down Return
key alt+2 alt+l Down
key alt+5 alt+g
wait_for_window 'EXCEPTION SETUP'
type_text VOID
key Return
wait_for_window 'Uploaded ??:??\* - OVL Software'
key alt+4 alt+p Down
key alt+3 alt+n Down
key alt+6 alt+a Down

# In "Changes" the rows are copied.
key ctrl+d
wait_for_window Changes
key ctrl+a ctrl+c
wait_until shows_listed
key Escape
wait_for_window 'Uploaded ??:??\* - OVL Software'
key ctrl+z ctrl+z
key alt+7
enter_remote alt+r
key alt+d
wait_for_window 'Program Download'
key Return
wait_for_window 'Uploaded ??:?? - OVL Software'
wait_until cmp -s memory kept

save_backup() {
  key ctrl+shift+s
  wait_for_window Save
  type_text "$1"
  key Return
  wait_until cmp -s "site/$1" kept
}

save_backup backup.bin
wait_for_window 'Uploaded ??:?? - OVL Software'
key ctrl+z
wait_for_window 'Uploaded ??:??\* - OVL Software'
key ctrl+o
wait_for_window Open
type_text backup.bin
key Return
wait_for_window 'backup.bin - OVL Software'
save_backup again.bin
wait_for_window 'backup.bin - OVL Software'

key ctrl+q
wait_for_end
end_unit
