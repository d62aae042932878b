# The audit screen of an administrator: the three conditions, the deletion with a row of its own.
#: options --user o'neil --now "2026-11-22 08:15"
#: app insert into global_setting values('default_lang', 'indonesia'), ('change_lang', '0'), ('use_payroll_module', '-1');
#:+ insert into user_login(login_id, group_id_auto) values('o''neil', 1), ('budi', 2), ('hrd', 1)
#: main insert into user_log values
#:+   ('o''neil', '2026-11-22 07:00', 7, 'today'), ('budi', '2026-11-15 00:00', 7, 'first day'),
#:+   ('budi', '2026-11-14 23:59', 7, 'day before'), ('budi', '2026-11-23 00:00', 7, 'day after'),
#:+   ('hrd', '2026-11-20 12:00', 1, 'device'), ('hrd', '2026-10-23 00:00', 5, 'kept day'),
#:+   ('hrd', '2026-10-22 23:59', 5, 'old'), ('budi', '2026-09-01 08:00', 2, 'very old')
start
click btn_userlog
get lookup_user
get dtp_tgl_aw
get dtp_tgl_akh
grid dbg_userlog
echo module alone
click chb_user
click chb_tgl
click btn_cari
grid dbg_userlog
echo nothing
click chb_modul
click btn_cari
grid dbg_userlog
echo user alone
click chb_user
choose lookup_user budi
click btn_cari
grid dbg_userlog
echo user and date
click chb_tgl
click btn_cari
grid dbg_userlog
echo date alone
click chb_user
click btn_cari
grid dbg_userlog
echo no user chosen
click chb_user
choose lookup_user ""
click btn_cari
grid dbg_userlog
echo one module, all modules
click chb_modul
choose cmb_modul Karyawan
click btn_cari
grid dbg_userlog
choose cmb_modul Semua
click btn_cari
grid dbg_userlog
echo the deletion
click btn_buka
get dtp_hapus
click btn_hapus
grid dbg_userlog
#: rows select * from user_log order by log_date, log_note
echo the day of its own row goes with a later date
set dtp_hapus 2026-11-23
click btn_hapus
#: rows select * from user_log order by log_date, log_note
echo no button for languages where change_lang is 0
answer 4
click btn_hapus
