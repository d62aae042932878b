# The quick guide comes a second after the start, takes no focus, fades out at a click and is then gone.
#: options --user hrd
#: app insert into global_setting values('default_lang', 'english');
#:+ insert into change_lang(com_form, com_name, no_index, english) values('frm_warning', 'lbl_langkah_4', -1, '4. Run it')
start
click btn_cari
wait 1500
forms
state btn_cari
get frm_warning
get frm_warning.lbl_langkah_4
state frm_warning.Image1
click frm_warning.Image1
state frm_warning.Image1
wait 4000
state frm_warning.Image1
