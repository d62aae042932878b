# Workspaces come and go over the recap, which is not read again; a search that takes long can be stopped.
#: options --user hrd --now "2026-11-05 08:00"
#: main insert into cabang values(1, 'Pusat'), (3, 'Cabang D''Or');
#:+ insert into func values(1, 'Staf'), (2, 'Kepala');
#:+ insert into dept values(4, 'PT\\Produksi\\Las', 'Las'), (2, 'PT\\Produksi', 'Produksi'), (1, 'PT', 'PT'), (3, 'PT\\Umum', 'Umum');
#:+ insert into emp(emp_id_auto, pin, nik, first_name, last_name, cab_id_auto, dept_id_auto, func_id_auto, emp_status) values
#:+   (-1, '0', '0', 'Tidak', 'Ada', 1, 1, 1, 0), (1, '1', 'N1', 'Ani', 'Putri', 1, 1, 1, 0),
#:+   (2, 'A 2', 'N2', 'Anisa', null, 1, 2, 2, 0), (3, '3', 'N3', 'Ma''ruf', 'Ali', 3, 4, 1, 0),
#:+   (4, '4', 'N4', 'Budi', 'Ani', 3, 3, 2, 0), (5, '5', 'N5', 'Ani', 'Keluar', 1, 2, 1, 1)
#: app insert into global_setting values('default_lang', 'indonesia'), ('tanggal_awal_proses', '2026-10-01'), ('tanggal_akhir_proses', '2026-10-31')
start
state Image1
state lbl_3
choose cmb_filter Nama
type edt_filter Ani
click btn_cari
grid dbg_rekap
double Image2
wait 200
forms
state frm_menu.pnl_atas
state frm_menu.pnl_judul
state frm_menu.pnl_tengah
#: main delete from emp where emp_id_auto=2
click frm_menu.lbl_2
wait 200
forms
close frm_hitung_gaji
forms
state pnl_judul
state pnl_tengah
get cmb_filter
grid dbg_rekap
click btn_cari
grid dbg_rekap
#: main rename table cabang to cabang_asli;
#:+ create view cabang as select * from cabang_asli where sleep(60)=0
choose cmb_filter Nama
type edt_filter Budi
watch
click btn_cari
state lbl_tunggu
click btn_userlog
key Alt+U
forms
click btn_batal_tunggu
watch
click btn_cari
key Esc
grid dbg_rekap
#: main create or replace view cabang as select * from cabang_asli
click btn_cari
grid dbg_rekap
