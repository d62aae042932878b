# Captions come from the table: names without regard to case, a mark for what was not translated, rows that name nothing.
#: options --user hrd --now "2026-11-22 08:15"
#: app insert into global_setting values('default_lang', 'english'), ('change_lang', '1'), ('use_payroll_module', '-1');
#:+ insert into user_login(login_id, group_id_auto) values('hrd', 1);
#:+ insert into change_lang(com_form, com_name, no_index, indonesia, english) values
#:+   ('frm_menu', 'frm_menu', -1, '', 'Payroll'),
#:+   ('FRM_MENU', 'LBL_1', -1, '', 'Components'),
#:+   ('frm_menu', 'lbl_2', -1, '', ''''''),
#:+   ('frm_menu', 'lbl_nobody', -1, '', 'Nobody'),
#:+   ('frm_menu', 'btn_userlog', -1, '', 'Audit && &log'), ('frm_menu', 'btn_userlog', 0, '', 'What was done'),
#:+   ('frm_userlog', 'cmb_modul', 1, '', 'Devices'),
#:+   ('frm_userlog', 'chb_user', -1, '', 'Person'),
#:+   ('frm_userlog', 'dbg_userloglog_note', -1, '', 'Note'),
#:+   ('frm_userlog', 'frm_userlog', -1, '', 'Audit trail')
start
forms
get lbl_1
get lbl_2
get lbl_3
get lbl_tgl
get btn_userlog
click btn_userlog
forms
items cmb_modul
grid dbg_userlog
close frm_userlog
echo an entry beyond the end of the list stops the rest of the form
#: app delete from change_lang where com_name in ('cmb_modul', 'frm_userlog');
#:+ insert into change_lang(com_form, com_name, no_index, english) values('frm_userlog', 'cmb_modul', 12, 'Nowhere'),
#:+   ('frm_userlog', 'lbl_hapus', -1, 'Never reached')
click btn_userlog
items cmb_modul
click btn_buka
get lbl_hapus
close frm_userlog
echo a language that is no column leaves the captions alone, but a message says so
#: app update global_setting set param_value='klingon' where param_id='default_lang'
click btn_userlog
get chb_user
click btn_buka
get lbl_hapus
click btn_hapus
