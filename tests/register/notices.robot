# What is passed over is told at the foot of the screen in front and kept in a list; screens that cannot open close.
#: options --user hrd --now "2026-11-05 08:15"
#: app-file app.sql
#: main-file company.sql
#: app insert into global_setting values ('cl_absen', 'no colour');
#: app insert into change_lang values ('frm_pemberitahuan', 'catatan user log dari penyimpanan', -1, 'catatan log', 'the log entry');
start
get frm_menu.lbl_notice_dropped
get frm_menu.btn_pemberitahuan
echo the next action that succeeds takes it away, the list keeps it
click frm_menu.Image2
state frm_menu.pnl_notice
get frm_menu.btn_pemberitahuan
echo a save without its audit row: stored, and told on the screen that stays
#: main create trigger no_log before insert on user_log for each row signal sqlstate '45000' set message_text='no log today';
click btn_tambah
type dbe_nama "Tanpa catatan"
click btn_simpan
forms
get frm_menu.lbl_notice_dropped
click frm_menu.btn_notice_close
state frm_menu.pnl_notice
echo nor can the list be read after it: the form closes all the same
#: main alter table func change func_name gone varchar(100);
click btn_tambah
type dbe_nama "Tanpa daftar"
click btn_simpan
forms
get frm_menu.lbl_notice_dropped
#: rows select process_id, process_name from z_pay_process_m
echo screens that cannot open
#: main alter table z_pay_grp change grp_name gone varchar(100);
click btn_tambah
wait 100
forms
click frm_menu.Image2
wait 100
forms
#: main alter table func change gone func_name varchar(100);
#: main alter table z_pay_grp change gone grp_name varchar(100);
echo on a screen of its own, which Esc still closes
click frm_menu.Image2
click btn_tambah
tick dbg_grp kode_grp=STF
click btn_select_all2
#: main alter table z_pay_com change no_urut gone int;
click btn_select_all
state lbl_notice
get lbl_notice
get lbl_notice_dropped
click btn_proses
get lbl_notice
get lbl_notice_dropped
key Esc
forms
echo who got no line, and why
#: main alter table z_pay_com change gone no_urut int;
#: main update z_pay_grp_com set use_sum=-1, operator_sum='/', konstanta_sum=0 where com_id=50
click btn_tambah
click btn_select_all
tick dbg_kom com_kode=MKN
tick dbg_kom com_kode=BNS
type dbe_nama x
click btn_proses
grid dbg_d
get lbl_notice
get lbl_notice_dropped
state btn_notice
click btn_notice
grid dbg_daftar
click btn_salin
click btn_tutup
click dbe_nama
key Ctrl+V
get dbe_nama
key Shift+Tab
state btn_notice_close
key Return
state pnl_notice
close frm_isian_hitung_gaji
echo the list
click frm_menu.btn_pemberitahuan
grid dbg_daftar
click btn_salin
click btn_tutup
get frm_menu.btn_pemberitahuan
echo on the paper that the action opened
#: main insert into z_pay_process_d (process_id, no_urut, emp_id_auto, tot_payroll) values (1, 1, 3, 40000)
#: main insert into z_pay_process_sd (process_id, no_urut, no_urut_ref, emp_id_auto, com_id, subtot_payroll) values (1, 1, 1, 3, 10, 40000)
#: app alter table change_lang change com_form gone varchar(100)
tick dbg_m process_id=1
click btn_cetak
menu "Rekap penggajian"
forms
get frm_preview.lbl_notice_dropped
state frm_menu.pnl_notice
