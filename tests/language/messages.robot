# A message text from the table, corrected on the spot: update, insert, deletion; then without the Language button.
#: options --user hrd --now "2026-11-22 08:15"
#: app insert into global_setting values('default_lang', 'english'), ('change_lang', '1'), ('use_payroll_module', '-1');
#:+ insert into user_login(login_id, group_id_auto) values('hrd', 1);
#:+ insert into tvk_message(message_id, com_form, indonesia, english) values
#:+   ('message_id[1]', 'frm_userlog', 'Sudah', 'Old log rows are gone.'),
#:+   ('message_id[1]', 'frm_other', 'Lain', 'Same key, other form')
start
click btn_userlog
click btn_buka
click btn_hapus
answer 4
input "It's \"done\" in C:\\new "
click btn_hapus
click btn_hapus
#: rows-app select message_id, com_form, indonesia, english from tvk_message order by com_form
echo an empty text deletes the row, and the program's own text shows
answer 4
input ""
click btn_hapus
click btn_hapus
#: rows-app select message_id, com_form, indonesia, english from tvk_message order by com_form
echo a text for a message without a row, and a change of mind
answer 4 4
input "Cleaned."
input !
click btn_hapus
click btn_hapus
#: rows-app select message_id, com_form, indonesia, english from tvk_message order by com_form
click btn_hapus
