# Saving and not saving: names, runs without lines, the run of another station, changes after the computation.
#: options --user hrd --now "2026-11-05 08:15"
#: app-file app.sql
#: main-file company.sql
start
click Image2
click btn_tambah
tick dbg_grp kode_grp=STF
click btn_select_all2
type dbe_nama "   "
click btn_simpan
state dbe_nama
grid dbg_kom
echo closing without saving drops everything
click btn_proses
close frm_isian_hitung_gaji
#: rows select count(*) from z_pay_process_m
echo a run that was never computed
click btn_tambah
type dbe_nama "Kosong 'A' \\ B"
click btn_simpan
#: rows select process_id, process_name, date1, date2, round_value, tot_process from z_pay_process_m
#: rows select count(*) from z_pay_process_d
#: rows select log_note from user_log
echo another station takes the number meanwhile: its run stays, this one is lost without a word
click btn_tambah
#: main insert into z_pay_process_m (process_id, process_name, date1, date2) values (2, 'Stasiun lain', '2026-10-10', '2026-10-20');
tick dbg_grp kode_grp=STF
click btn_select_all2
type dbe_nama "Bentrok"
click btn_proses
click btn_simpan
forms
#: rows select process_id, process_name from z_pay_process_m
echo the unit counts from the next Hitung on
click btn_tambah
tick dbg_grp kode_grp=STF
click btn_select_all2
set dbtp_tgl_aw 2026-10-01
set dbtp_tgl_akh 2026-10-31
type dbe_nama "Bulat"
click btn_proses
get lbl_total
type dbe_bulat 1000000
click btn_hitung
get lbl_total
type dbe_bulat 5000
click btn_simpan
#: rows select process_name, round_value, tot_process from z_pay_process_m where process_id=3
