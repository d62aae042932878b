# A saved run is opened, computed anew and saved.
# Each control with its form: the quick guide may come up meanwhile.
start
click frm_menu.Image2
set frm_hitung_gaji.dtp_tgl_aw 2026-10-01
click frm_hitung_gaji.btn_cari
tick frm_hitung_gaji.dbg_m process_name=Lama
click frm_hitung_gaji.btn_edit
tick frm_isian_hitung_gaji.dbg_grp kode_grp=STF
click frm_isian_hitung_gaji.btn_select_all2
click frm_isian_hitung_gaji.chb_kredit
click frm_isian_hitung_gaji.btn_proses
click frm_isian_hitung_gaji.btn_simpan
forms
get frm_menu.btn_pemberitahuan
