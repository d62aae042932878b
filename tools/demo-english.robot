# The same screens in English.
start
shot 12-recap.png
click Image2
set dtp_tgl_aw @AWAL@
click btn_cari
row dbg_m #1
shot 13-register.png
click btn_tambah
click btn_select_all
shot 14-run-form.png
close frm_isian_hitung_gaji
close frm_hitung_gaji
click btn_userlog
shot 15-audit-log.png
close frm_userlog
