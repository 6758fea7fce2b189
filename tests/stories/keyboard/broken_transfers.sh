# The unit is gone in the middle of an upload, then in the middle of a download. The advice leads on.
start_unit --image site/V1400/R12/NCR.bin
cp memory before
by_script << 'END'
click cmdTitle
type frmSetEXCPSTR.Text1 "SHOP 12"
key frmSetEXCPSTR.Text1 Enter
pick ComboTD(2) "DD/MM/YY"
stream "changed"
END
! cmp -s changed before || fail 'the same configuration'

# Half of the configuration has passed in this direction, "<" from the unit, ">" to it, when the unit ends.
end_unit_halfway() {
  wait_until passed_more $(($(passed) + 2000))
  end_unit
  heard "$1 \\$" && ! heard '#' || fail 'not halfway'
  cmp memory before
}

# The button of the advice is three places before the filter of the registers.
go_to_advice() {
  settle
  key alt+1 ctrl+f shift+Tab shift+Tab shift+Tab
}

start_program
wait_for_window 'GENERIC - OVL Software'
key alt+6 alt+s
wait_for_window 'TITLE SETUP'
type_text 'SHOP 12'
key Return
wait_for_window 'GENERIC\* - OVL Software'
key alt+a Down alt+7
connect_comport_2 'GENERIC\* - OVL Software'
enter_remote alt+r
key alt+u
wait_until heard '> /LU'
end_unit_halfway '<'

# Set Comport would not help: the advice is "Restart".
wait_for_window '- Connection Fail -'
key Return
wait_for_window 'GENERIC\* - OVL Software'
go_to_advice
key space
wait_for_end
wait_for_window 'rescued V1400R12 1.bin - OVL Software'
cmp 'site/rescued V1400R12 1.bin' changed

start_unit
key alt+7
connect_comport_2 'rescued V1400R12 1.bin - OVL Software'
enter_remote alt+r
key alt+d
wait_until heard '> /LD'
end_unit_halfway '>'

# The button of the advice is "Disconnect", then "Set Comport", then "Remote".
wait_for_window 'OVL Software'
key Return
wait_for_window 'rescued V1400R12 1.bin - OVL Software'
start_unit
go_to_advice
key space
settle
key space
wait_for_window 'Communication Setting'
key Return
wait_for_window 'rescued V1400R12 1.bin - OVL Software'
enter_remote space
key alt+7 alt+d
wait_for_window 'Program Download'
key Return
wait_for_window 'rescued V1400R12 1.bin - OVL Software'
wait_until cmp -s memory changed

program=$(xdotool getwindowfocus getwindowpid)
key ctrl+q
wait_until ended "$program"
! grep Sanitizer said || fail 'it ended with an error'
end_unit
