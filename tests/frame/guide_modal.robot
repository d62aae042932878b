# A modal screen takes the quick guide away, which would lie above it and could not be closed; it does not come back.
#: options --user hrd
start
wait 1500
state frm_warning.Image1
click btn_userlog
close frm_userlog
wait 1500
state frm_warning.Image1
