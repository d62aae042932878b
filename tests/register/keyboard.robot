# The run form and the register by keyboard alone.
#: options --user hrd --now "2026-11-05 08:15"
#: app-file app.sql
#: main-file company.sql
start
key Alt+L
forms
key Escape
forms
click Image2
echo Enter searches, Alt+T opens the form with the focus on the name
state dtp_tgl_aw
key Return
key Alt+T
forms
state dbe_nama
type dbe_nama "Tombol 🙂"
echo Enter goes on to the next field
key Return
state dbtp_tgl_aw
echo Space ticks, the shortcut computes
key Alt+G
key Space
grid dbg_grp
click btn_select_all2
key Alt+R
get lbl_total
echo what is being typed counts for a shortcut that leaves the focus where it is
type dbe_bulat 1000000
key Alt+U
get lbl_total
type dbe_bulat 7
echo Esc closes the list of employees before the form
key Alt+Y
state pnl_emp
key Escape
state pnl_emp
forms
key Alt+S
forms
#: rows select process_name, round_value, tot_process from z_pay_process_m
