# With change_lang "0" no dialog has a Language button, whatever the tables hold.
#: options --user hrd --now "2026-11-22 08:15"
#: app insert into global_setting values('default_lang', 'english'), ('change_lang', '0');
#:+ insert into user_login(login_id, group_id_auto) values('hrd', 1);
#:+ insert into tvk_message(message_id, com_form, english) values('message_id[1]', 'frm_userlog', 'Gone.')
start
click btn_userlog
items cmb_modul
get cmb_modul
click btn_buka
answer 4
click btn_hapus
