# The register: range ends, ticks, edit with none, one and two ticked, deletion with its question and its audit rows.
#: options --user hrd --now "2026-11-05 08:15"
#: app-file app.sql
#: main-file company.sql
#: main insert into z_pay_process_m (process_id, process_name, date1, date2, tot_process) values
#:+   (1, 'Awal', '2026-10-06', '2026-10-31', 1500.5), (2, 'Sehari sebelum', '2026-10-05', '2026-10-31', 2),
#:+   (3, 'Akhir', '2026-11-01', '2026-11-05', -1234567), (4, 'Sehari sesudah', '2026-11-01', '2026-11-06', 4),
#:+   (5, 'It''s \\', '2026-11-01', '2026-11-02', 5);
#:+ insert into z_pay_process_d (process_id, no_urut, emp_id_auto, tot_payroll) values (1, 1, 3, 100), (1, 2, 2, 200), (3, 1, 99, 5);
#:+ insert into z_pay_process_sd (process_id, no_urut, no_urut_ref, emp_id_auto, com_id, subtot_payroll, jml_faktor) values
#:+   (1, 1, 1, 3, 10, 1000.5, 2.5), (1, 1, 2, 3, 50, 1.5, 1), (1, 1, 3, 3, 30, 7, 1)
start
click Image2
grid dbg_m
grid dbg_d
get lbl_tunjangan_isi
get lbl_potongan_isi
row dbg_m process_name=Awal
grid dbg_d
row dbg_d pin=10
grid dbg_sd
grid dbg_sd2
get lbl_tunjangan_isi
row dbg_m process_name=Akhir
get lbl_emp_isi
get lbl_tunjangan_isi
click btn_edit
forms
tick dbg_m process_name=Akhir
tick dbg_m process_name=Awal
click btn_edit
untick dbg_m process_name=Akhir
click btn_edit
forms
get dbe_nama
close frm_isian_hitung_gaji
click btn_invert
grid dbg_m
echo the question: no, Language, yes while a statement fails
answer !
click btn_hapus
answer 4
input "Hapus?"
click btn_hapus
#: rows select process_id from z_pay_process_m
#: rows select * from user_log
#: main rename table z_pay_process_d to z_away
answer 1
click btn_hapus
#: main rename table z_away to z_pay_process_d
#: rows select process_id from z_pay_process_m
#: rows select process_id, no_urut from z_pay_process_d
#: rows select * from user_log
click btn_cari
grid dbg_m
row dbg_m #1
row dbg_d #2
echo nothing ticked: the question comes all the same
answer 1
click btn_hapus
click btn_select_all
answer 1
click btn_hapus
grid dbg_m
grid dbg_sd
click btn_hapus
click btn_edit
forms
