# A department whose parent is missing stands under the root and can be searched; nothing else is lost.
#: options --user hrd
#: main insert into dept values(1, 'PT', 'PT'), (2, 'PT\\Satu', 'Satu'), (3, 'PT\\Dua\\Tiga', 'Tiga');
#:+ insert into emp(emp_id_auto, pin, dept_id_auto, emp_status) values(1, '1', 1, 0), (2, '2', 3, 0)
#: app insert into global_setting values('default_lang', 'indonesia'), ('tanggal_awal_proses', '2026-10-01'), ('tanggal_akhir_proses', '2026-10-31')
start
items TCB_dept
state dbg_rekap
choose cmb_filter Departemen
choose TCB_dept PT/PT\Dua\Tiga
set chb_sub 0
click btn_cari
grid dbg_rekap
click Image2
forms
get frm_menu.btn_pemberitahuan
