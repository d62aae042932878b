# The menu of papers: nothing ticked, the three papers of one run, a PDF through the save dialog, an empty run.
#: options --user hrd --now "2026-11-05 08:15"
#: app-file app.sql
#: main-file company.sql
#: main insert into z_pay_process_m (process_id, process_name, date1, date2, tot_process) values
#:+   (1, 'Oktober', '2026-10-10', '2026-10-31', 3170000), (2, 'Kosong', '2026-10-10', '2026-10-31', 0);
#:+ insert into z_pay_process_d (process_id, no_urut, emp_id_auto, tot_payroll) values (1, 1, 3, 3170000);
#:+ insert into z_pay_process_sd (process_id, no_urut, no_urut_ref, emp_id_auto, com_id, subtot_payroll, jml_faktor, kondisi) values
#:+   (1, 1, 1, 3, 10, 3000000, 1, '* 3.000.000'), (1, 1, 2, 3, 50, 250000, 2.5, ''), (1, 1, 3, 3, 40, 80000, 2, ' x Angsuran');
#:+ update z_pay_grp_com set jenis=1 where com_id=10 and grp_id=2
start
click Image2
click btn_cetak
menu "Rekap penggajian"
tick dbg_m process_name=Oktober
click btn_cetak
menu "Rekap penggajian"
forms
report
close frm_preview
click btn_cetak
menu "Rincian penggajian"
report
close frm_preview
click btn_cetak
menu "Slip penggajian"
report
file slip.pdf
click btn_simpan
file !
click btn_simpan
close frm_preview
click btn_invert
click btn_cetak
menu "Rekap penggajian"
forms
click btn_cetak
menu "Slip penggajian"
report
close frm_preview
echo employees whose PINs are no numbers follow by their keys
#: main insert into emp (emp_id_auto, pin, emp_status) values (8, 'A', 1), (7, 'B', 1), (6, 'C', 1);
#:+ insert into z_pay_process_d (process_id, no_urut, emp_id_auto, tot_payroll) values (2, 1, 7, 1), (2, 2, 6, 1), (2, 3, 8, 1)
row dbg_m process_name=Kosong
grid dbg_d
click btn_cetak
menu "Rekap penggajian"
report
close frm_preview
echo a caption that fills the page leaves no room for the report
#: app insert into change_lang (com_form, com_name, indonesia) values ('frm_hitung_gaji', 'ppl_dari', repeat('W', 145))
click btn_select_all
click btn_cetak
menu "Rekap penggajian"
forms
