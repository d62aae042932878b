# One payroll month, for the pictures of the documentation; docs/pictures/make runs it.
start
shot recap.png
click Image2
set dtp_tgl_aw 2026-08-01
set dtp_tgl_akh 2026-10-31

click btn_tambah
type dbe_nama "@GAJI@ 08/2026"
set dbtp_tgl_aw 2026-08-01
set dbtp_tgl_akh 2026-08-31
tick dbg_grp *
tick dbg_kom *
click btn_proses
click btn_simpan

click btn_tambah
type dbe_nama "@GAJI@ 09/2026"
set dbtp_tgl_aw 2026-09-01
set dbtp_tgl_akh 2026-09-30
tick dbg_grp *
tick dbg_kom *
click btn_proses
click btn_simpan

click btn_tambah
type dbe_nama "@GAJI@ 10/2026"
set dbtp_tgl_aw 2026-10-01
set dbtp_tgl_akh 2026-10-31
type dbe_bulat 1000
tick dbg_grp *
tick dbg_kom *
shot choose.png
click btn_proses
row dbg_d nama="Fitri Saputra"
shot run-form.png
click btn_simpan

row dbg_m process_name="@GAJI@ 10/2026"
tick dbg_m process_name="@GAJI@ 10/2026"
row dbg_d nama="Fitri Saputra"
shot register.png
click btn_cetak
menu "@SLIP@"
shot slip.png
close frm_preview
