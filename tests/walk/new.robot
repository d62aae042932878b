# A new run is computed and saved.
start
click Image2
click btn_tambah
type dbe_nama "Baru"
set dbtp_tgl_aw 2026-10-01
set dbtp_tgl_akh 2026-10-31
tick dbg_grp kode_grp=STF
click btn_select_all2
click chb_kredit
click btn_proses
click btn_simpan
forms
