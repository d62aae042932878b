# The server breaks the session off at each of the three batches of a save; the program lives, the next action works.
#: options --user hrd --now "2026-11-05 08:15"
#: app-file app.sql
#: main-file company.sql
start
click Image2
click btn_tambah
tick dbg_grp kode_grp=STF
click btn_select_all2
type dbe_nama "Tanpa kepala"
click btn_proses
#: main create trigger gone_m before insert on z_pay_process_m for each row kill connection_id()
click btn_simpan
forms
#: main drop trigger gone_m
#: rows select count(*) from z_pay_process_m union all select count(*) from z_pay_process_d union all select count(*) from z_pay_process_sd
click btn_tambah
tick dbg_grp kode_grp=STF
click btn_select_all2
type dbe_nama "Tanpa baris"
click btn_proses
#: main create trigger gone_d before insert on z_pay_process_d for each row kill connection_id()
click btn_simpan
#: main drop trigger gone_d
#: rows select count(*) from z_pay_process_m union all select count(*) from z_pay_process_d union all select count(*) from z_pay_process_sd
click btn_tambah
tick dbg_grp kode_grp=STF
click btn_select_all2
type dbe_nama "Tanpa rincian"
click btn_proses
#: main create trigger gone_sd before insert on z_pay_process_sd for each row kill connection_id()
click btn_simpan
#: main drop trigger gone_sd
#: rows select count(*) from z_pay_process_m union all select count(*) from z_pay_process_d union all select count(*) from z_pay_process_sd
set dtp_tgl_aw 2026-10-01
click btn_cari
grid dbg_m
