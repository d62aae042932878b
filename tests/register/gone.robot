# The server breaks the session off, or the statement, at a read of the computation: nothing is lost, the screen says so
# and keeps what it holds, and the same press works when the cause is gone.
#: options --user hrd --now "2026-11-05 08:15"
#: app-file app.sql
#: main-file company.sql
start
click Image2
click btn_tambah
tick dbg_grp kode_grp=STF
click btn_select_all2
type dbe_nama "Putus"
click btn_proses
echo a computation that loses its connection, or is cancelled, leaves the lines as they were
#: main create function killed() returns int begin kill connection_id(); return 1; end;
#:+ create function cancelled() returns int begin kill query connection_id(); return 1; end;
#:+ rename table z_pay_money to away;
#:+ insert into z_pay_grp_com (com_id, grp_id, no_urut_ref, use_kode_if, use_sum, use_kode_sum, id_kode_sum) values (50, 1, 9, -1, -1, 0, 17);
#:+ create view z_pay_money as select * from away where killed()
tick dbg_grp kode_grp=HRN
click btn_select_all2
click btn_proses
#: main create or replace view z_pay_money as select * from away where cancelled()
click btn_proses
#: main drop view z_pay_money;
#:+ rename table away to z_pay_money
#: app create function killed() returns int begin kill connection_id(); return 1; end;
#:+ rename table global_setting to away;
#:+ create view global_setting as select concat(killed()) as param_id, '0' as param_value
click btn_proses
grid dbg_d
click btn_simpan
forms
#: rows select * from z_pay_process_d
#: rows select count(*) from z_pay_process_sd
#: rows select log_note from user_log
