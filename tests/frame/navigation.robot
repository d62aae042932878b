# Workspaces come and go over the recap, which is not read again; a search that takes long can be stopped.
#: options --user hrd --now "2026-11-05 08:00"
#: main-file company.sql
#: app insert into global_setting values('default_lang', 'indonesia'), ('tanggal_awal_proses', '2026-10-01'), ('tanggal_akhir_proses', '2026-10-31')
start
state Image3
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
