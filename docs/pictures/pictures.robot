# Makes the pictures of the documentation; how to run it stands in docs/robot.md.
start
click Image2
set dtp_tgl_aw 2026-08-01
set dtp_tgl_akh 2026-10-31

click btn_tambah
set dbe_nama "Gaji Agustus 2026"
set dbtp_tgl_aw 2026-08-01
set dbtp_tgl_akh 2026-08-31
tick dbg_grp *
tick dbg_kom *
click btn_proses
click btn_simpan

click btn_tambah
set dbe_nama "Gaji September 2026"
set dbtp_tgl_aw 2026-09-01
set dbtp_tgl_akh 2026-09-30
tick dbg_grp *
tick dbg_kom *
click btn_proses
click btn_simpan

click btn_tambah
set dbe_nama "Gaji Oktober 2026"
set dbtp_tgl_aw 2026-10-01
set dbtp_tgl_akh 2026-10-31
tick dbg_grp *
tick dbg_kom *
click btn_proses
row dbg_d nama="Fitri Saputra"
shot run-form.png
click btn_simpan

row dbg_m process_name="Gaji Oktober 2026"
tick dbg_m process_name="Gaji Oktober 2026"
row dbg_d nama="Fitri Saputra"
shot register.png
