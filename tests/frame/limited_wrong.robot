# A limit that is no number: the first search does not run, and every list stays empty.
#: options --user hrd --now "2026-11-05 08:15" --admin-id x:
#: main-file company.sql
#: main insert into z_pay_grp(grp_id, kode_grp, grp_name) values(1, 'HRN', 'Harian');
#:+ insert into z_pay_grp_emp(grp_id, emp_id_auto) values(1, 1), (1, 3);
#:+ insert into z_pay_process_m(process_id, process_name, date1, date2) values(1, 'Kami', '2026-10-10', '2026-10-20');
#:+ insert into z_pay_process_d(process_id, no_urut, emp_id_auto, tot_payroll) values(1, 1, 3, 20)
#: app insert into global_setting values('default_lang', 'indonesia'), ('change_lang', '0'), ('tanggal_awal_proses', '2026-10-01'), ('tanggal_akhir_proses', '2026-10-31')
start
state dbg_rekap
click btn_userlog
close frm_userlog
choose cmb_filter Cabang
state lookup_cab
click btn_cari
state dbg_rekap
click Image2
click btn_cari
state dbg_m
click btn_tambah
state dbg_grp
click chb_emp
items clb_emp
echo nor has an error a button for languages where change_lang is 0
answer 4
click btn_simpan
