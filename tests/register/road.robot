# One run from beginning to end: computed, saved, found, opened again, corrected by hand, saved again.
#: options --user hrd --now "2026-11-05 08:15"
#: app-file app.sql
#: main-file company.sql
start
click Image2
forms
grid dbg_m
click btn_tambah
forms
state dbe_nama
grid dbg_grp
tick dbg_grp kode_grp=STF
grid dbg_kom
click btn_select_all2
type dbe_nama "Gaji Oktober"
set dbtp_tgl_aw 2026-10-01
set dbtp_tgl_akh 2026-10-31
type dbe_bulat "1k000x"
get dbe_bulat
click btn_proses
get lbl_total
get dbe_total
grid dbg_d
grid dbg_sd
get lbl_nama_emp
get lbl_tunjangan_isi
get lbl_potongan_isi
row dbg_d pin="A 2"
get lbl_nama_emp
grid dbg_sd
click btn_simpan
forms
#: rows select * from z_pay_process_m
#: rows select * from z_pay_process_d order by no_urut
#: rows select process_id, no_urut, no_urut_ref, emp_id_auto, com_id, subtot_payroll, kondisi, rumus, jml_faktor from z_pay_process_sd order by no_urut_ref
#: rows select * from user_log
grid dbg_m
set dtp_tgl_aw 2026-10-01
click btn_cari
grid dbg_m
get lbl_emp_isi
get lbl_tunjangan_isi
row dbg_m #1
get lbl_emp_isi
get lbl_tunjangan_isi
get lbl_potongan_isi
grid dbg_d
grid dbg_sd
grid dbg_sd2
row dbg_d #2
get lbl_tunjangan_isi
echo opened again: Hitung with another unit, one row and one line deleted
tick dbg_m *
click btn_edit
forms
get dbe_nama
grid dbg_grp
grid dbg_kom
grid dbg_d
get lbl_total
type dbe_bulat 7
click btn_hitung
get lbl_total
row dbg_sd com_kode=KOP
click btn_hapus2
get lbl_total
row dbg_d pin=5
click btn_hapus
get lbl_total
grid dbg_d
click btn_simpan
#: rows select process_id, process_name, round_value, tot_process, lastupdate_user from z_pay_process_m
#: rows select * from z_pay_process_d order by no_urut
#: rows select no_urut, no_urut_ref, com_id, subtot_payroll from z_pay_process_sd order by no_urut_ref
#: rows select log_note from user_log
