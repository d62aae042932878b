# Everybody but administrators sees his own rows and deletes nothing.
#: options --user budi --now "2026-11-22 08:15"
#: app insert into global_setting values('default_lang', 'indonesia'), ('change_lang', '1'), ('use_payroll_module', '0');
#:+ insert into user_login(login_id, group_id_auto) values('budi', 2), ('hrd', 1)
#: main insert into user_log values ('budi', '2026-11-21 07:00', 7, 'own'), ('hrd', '2026-11-21 07:00', 7, 'foreign'),
#:+   ('budi', '2026-11-21 08:00', 3, 'schedule')
start
click btn_userlog
state chb_user
state lookup_user
state pnl_bawah
get lookup_user
items cmb_modul
get cmb_modul
grid dbg_userlog
