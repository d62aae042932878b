# A new run is computed and saved.
# Each control with its form: the quick guide may come up meanwhile.
start
click frm_menu.Image2
click frm_hitung_gaji.btn_tambah
type frm_isian_hitung_gaji.dbe_nama "Baru"
set frm_isian_hitung_gaji.dbtp_tgl_aw 2026-10-01
set frm_isian_hitung_gaji.dbtp_tgl_akh 2026-10-31
tick frm_isian_hitung_gaji.dbg_grp kode_grp=STF
click frm_isian_hitung_gaji.btn_select_all2
click frm_isian_hitung_gaji.chb_kredit
click frm_isian_hitung_gaji.btn_proses
click frm_isian_hitung_gaji.btn_simpan
forms
get frm_menu.btn_pemberitahuan
