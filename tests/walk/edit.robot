# A saved run is opened, computed anew and saved.
start
click Image2
set dtp_tgl_aw 2026-10-01
click btn_cari
tick dbg_m process_name=Lama
click btn_edit
tick dbg_grp kode_grp=STF
click btn_select_all2
click chb_kredit
click btn_proses
click btn_simpan
forms
