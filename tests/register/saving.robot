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
echo a run that was never computed; what a lost header left behind under its number goes
#: main insert into z_pay_process_d (process_id, no_urut, emp_id_auto, tot_payroll) values (1, 7, 3, 99);
#:+ insert into z_pay_process_sd (process_id, no_urut, no_urut_ref, emp_id_auto, com_id) values (1, 7, 9, 3, 10)
click btn_tambah
grid dbg_d
type dbe_nama "Kosong 'A' \\ B"
click btn_simpan
#: rows select process_id, process_name, date1, date2, round_value, tot_process from z_pay_process_m
#: rows select count(*) from z_pay_process_d union all select count(*) from z_pay_process_sd
#: rows select log_note from user_log
echo another station takes the number meanwhile: this run takes the next one
click btn_tambah
#: main insert into z_pay_process_m (process_id, process_name, date1, date2) values (2, 'Stasiun lain', '2026-10-10', '2026-10-20');
tick dbg_grp kode_grp=STF
click btn_select_all2
type dbe_nama "Bentrok"
click btn_proses
click btn_simpan
forms
#: rows select process_id, process_name from z_pay_process_m
#: rows select process_id, no_urut, emp_id_auto, tot_payroll from z_pay_process_d
#: rows select process_id, count(*) from z_pay_process_sd group by process_id
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
#: rows select process_name, round_value, tot_process from z_pay_process_m where process_id=4
echo edited: Proses replaces all lines, what the screen does not show stays
#: main update z_pay_process_m set payment_date='2026-11-01', create_by='Kepala', lastupdate_date='2026-01-01' where process_id=4
set dtp_tgl_aw 2026-10-01
click btn_cari
tick dbg_m process_name=Bulat
click btn_edit
tick dbg_grp kode_grp=HRN
click btn_select_all2
click btn_proses
close frm_isian_hitung_gaji
#: rows select no_urut, emp_id_auto, tot_payroll from z_pay_process_d where process_id=4
click btn_edit
tick dbg_grp kode_grp=HRN
click btn_select_all2
click btn_proses
click btn_simpan
#: rows select process_id, process_name, payment_date, create_by, tot_process, lastupdate_date from z_pay_process_m where process_id=4
#: rows select no_urut, emp_id_auto, tot_payroll from z_pay_process_d where process_id=4
#: rows select no_urut, no_urut_ref, com_id, subtot_payroll from z_pay_process_sd where process_id=4
echo changed elsewhere by the same user within the minute: asked, and replaced only with consent, whole
tick dbg_m process_name=Bulat
click btn_edit
type dbe_bulat 7
#: main update z_pay_process_d set tot_payroll=1 where process_id=4 and no_urut=2;
#:+ insert into z_pay_process_d (process_id, no_urut, emp_id_auto, tot_payroll) values (4, 3, 1, 5);
#:+ insert into z_pay_process_sd (process_id, no_urut, no_urut_ref, emp_id_auto, com_id) values (4, 3, 13, 1, 10)
answer 2
click btn_simpan
get dbe_bulat
#: rows select process_id, no_urut, tot_payroll from z_pay_process_d where process_id=4
answer 1
click btn_simpan
forms
#: rows select process_id, round_value, payment_date, tot_process from z_pay_process_m where process_id=4
#: rows select no_urut, tot_payroll from z_pay_process_d where process_id=4
#: rows select no_urut, no_urut_ref, com_id, subtot_payroll from z_pay_process_sd where process_id=4
echo deleted elsewhere: while it is open, and while it stands in the list
tick dbg_m process_name=Bulat
click btn_edit
#: main delete from z_pay_process_m where process_id=4
click btn_simpan
close frm_isian_hitung_gaji
#: main insert into z_pay_process_m (process_id, process_name, date1, date2) values (4, 'Hilang', '2026-10-10', '2026-10-20')
click btn_cari
tick dbg_m process_name=Hilang
#: main delete from z_pay_process_m where process_id=4
click btn_edit
forms
#: rows select count(*) from user_log
echo a line that drops out is in the total until the next Hitung
#: main insert into zx_bayar_kredit (id_bayar, tgl_bayar, id_kredit, no_urut, debet, emp_id_auto) values (9, '2026-10-20', 1, 9, 5000000, 5);
click btn_tambah
set dbtp_tgl_aw 2026-10-01
set dbtp_tgl_akh 2026-10-31
tick dbg_grp kode_grp=HRN
click btn_select_all2
click chb_kredit
click btn_proses
grid dbg_d
get lbl_total
get lbl_jumlah_benar
click btn_hitung
get lbl_total
state lbl_jumlah_benar
close frm_isian_hitung_gaji
echo a stored total that has wrapped, in the register and on the form
state lbl_jumlah_benar
#: main update z_pay_process_m set tot_process=-1044967296 where process_id=3
#: main update z_pay_process_d set tot_payroll=3250000000 where process_id=3
set dtp_tgl_aw 2026-10-01
click btn_cari
row dbg_m process_name=Bentrok
get lbl_jumlah_benar
tick dbg_m process_name=Bentrok
click btn_edit
get lbl_total
get lbl_jumlah_benar
close frm_isian_hitung_gaji
echo a computation that is stopped leaves the lines as they were, and the next one works
click btn_tambah
set dbtp_tgl_aw 2026-10-01
set dbtp_tgl_akh 2026-10-31
tick dbg_grp kode_grp=STF
click btn_select_all2
click btn_proses
#: main lock tables z_pay_money write
watch
click btn_proses
click btn_batal_tunggu
#: main unlock tables
grid dbg_d
get lbl_total
click btn_proses
get lbl_total
