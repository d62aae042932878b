# A department whose parent is missing: the first activation ends there, and the program goes on.
#: options --user hrd
#: main insert into dept values(1, 'PT', 'PT'), (2, 'PT\\Satu', 'Satu'), (3, 'PT\\Dua\\Tiga', 'Tiga')
#: app insert into global_setting values('default_lang', 'indonesia'), ('tanggal_awal_proses', '2026-10-01'), ('tanggal_akhir_proses', '2026-10-31')
start
items TCB_dept
state dbg_rekap
choose cmb_filter NIK
state edt_filter
#: main delete from dept where dept_id_auto=3
choose cmb_filter NIK
state edt_filter
get TCB_dept
click btn_cari
state dbg_rekap
