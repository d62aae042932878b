# The pick lists: group ticks throw the chosen components away, employees of two groups, loans by period and by month.
#: options --user hrd --now "2026-11-05 08:15"
#: app-file app.sql
#: main-file company.sql
start
click Image2
click btn_tambah
set dbtp_tgl_aw 2026-10-01
set dbtp_tgl_akh 2026-10-31
echo nothing ticked
click btn_proses
grid dbg_d
get lbl_total
echo a group without components
tick dbg_grp kode_grp=STF
click btn_proses
grid dbg_d
echo components are lost with the next group tick
click btn_select_all2
tick dbg_grp kode_grp=HRN
grid dbg_kom
click btn_proses
grid dbg_d
echo somebody in two groups has two lines
click btn_select_all2
click btn_proses
grid dbg_d
row dbg_d #5
grid dbg_sd
echo without any group the chosen components stay, out of sight
untick dbg_grp *
grid dbg_kom
tick dbg_grp kode_grp=HRN
click btn_invert2
untick dbg_kom com_kode=BNS
untick dbg_grp kode_grp=HRN
grid dbg_kom
click btn_proses
grid dbg_d
echo picked employees: listed by group, computed with the rules of the first one
click btn_select_all
click btn_select_all2
click chb_emp
items clb_emp
state pnl_emp
check clb_emp "[5] Eka O'Hara"
get lbl_jml
click btn_balik
get lbl_jml
click btn_balik
click btn_proses
state pnl_emp
grid dbg_d
row dbg_d #2
grid dbg_sd
echo nobody picked
click btn_emp
click btn_disel_all
get lbl_jml
click btn_proses
grid dbg_d
echo an empty list
click chb_emp
click btn_disselect_all
click chb_emp
click btn_proses
echo loans of the period, then of a month
click chb_emp
tick dbg_grp kode_grp=STF
click btn_select_all2
state cmb_kredit
click chb_kredit
state cmb_kredit
state dtp_bulan
click btn_proses
grid dbg_sd
choose cmb_kredit Bulan
state dtp_bulan
get dtp_bulan
set dtp_bulan 2026-09-01
click btn_proses
grid dbg_sd
get lbl_total
