# The program's main job on the demo company. @AWAL@ and @AKHIR@ stand for the first and last day of the last month.
start
grid dbg_rekap
shot 02-rekap.png
choose cmb_filter Departemen
choose TCB_dept "PT Mandala Citra Pangan/Produksi"
click btn_cari
shot 03-rekap-departemen.png
click Image2
click btn_tambah
shot 04-isian-kosong.png
type dbe_nama "Gaji bulan lalu"
set dbtp_tgl_aw @AWAL@
set dbtp_tgl_akh @AKHIR@
type dbe_bulat 1000
click btn_select_all
click btn_select_all2
click chb_kredit
click btn_proses
get lbl_total
grid dbg_d
shot 05-isian-terhitung.png
click btn_simpan
set dtp_tgl_aw @AWAL@
set dtp_tgl_akh @AKHIR@
click btn_cari
grid dbg_m
row dbg_m #1
get lbl_emp_isi
get lbl_tunjangan_isi
grid dbg_sd
grid dbg_sd2
tick dbg_m #1
shot 06-register.png
click btn_cetak
menu "Rekap penggajian"
shot 07-pratinjau-rekap.png
pdf rekap-penggajian.pdf
close frm_preview
click btn_cetak
menu "Rincian penggajian"
pdf rincian-penggajian.pdf
close frm_preview
click btn_cetak
menu "Slip penggajian"
shot 08-pratinjau-slip.png
pdf slip-penggajian.pdf
close frm_preview
close frm_hitung_gaji
click btn_userlog
grid dbg_userlog
shot 09-user-log.png
close frm_userlog
