# The catalogue of components: from an empty table by hand, each message, flags that hang together, editing, deleting.
#: options --user "h'r\\d" --now "2026-11-05 08:15"
#: app insert into global_setting values ('default_lang', 'indonesia')
start
click Image1
forms
state dbg_comp
click btn_edit
click btn_hapus
echo a new one: the checks in their order
click btn_tambah
forms
get edt_no_urut
state edt_nama
state cmb_bayar
click btn_simpan
type edt_nama "Gaji 'Pokok' yang sangat panjang sekali"
get edt_nama
click btn_simpan
type edt_kode GPKX
type edt_no_urut ""
click btn_simpan
type edt_no_urut "1a0,5"
get edt_no_urut
set edt_no_urut 5
click chb_take_home_pay
choose cmb_bayar Transfer
click chb_param
click btn_simpan
get edt_nama
get edt_no_urut
get cmb_bayar
state edt_nama
#: rows select * from z_pay_com
echo one that exists; the loan flag makes a deduction of it and locks the kind
type edt_nama "gaji 'pokok' yang sangat panja"
key Tab
state edt_nama
type edt_nama "Koperasi"
type edt_kode gpk
key Tab
type edt_kode KOP
type edt_no_urut 05
key Tab
type edt_no_urut 10
click chb_pinjaman
get cmb_jenis
state cmb_jenis
click chb_take_home_pay
choose cmb_bayar Transfer
click chb_take_home_pay
state cmb_bayar
click btn_simpan
type edt_no_urut 05
key Tab
state edt_no_urut
type edt_no_urut 010
key Tab
close frm_isian_komponen
grid dbg_comp
#: rows select com_id, com_kode, type, no_urut, take_home_pay, cara_bayar, pinjaman from z_pay_com order by com_id
echo two ticks are too many; one is edited, and its own values are no duplicates
click btn_select_all
click btn_edit
click btn_disselect_all
tick dbg_comp com_kode=KOP
click btn_edit
forms
get edt_kode
state cmb_jenis
click edt_kode
click edt_no_urut
click edt_nama
click chb_pinjaman
state cmb_jenis
get cmb_jenis
type edt_nama "Kop\'s"
click btn_simpan
forms
grid dbg_comp
echo an empty number is none when it is left
tick dbg_comp com_kode=KOP
click btn_edit
type edt_no_urut ""
key Tab
close frm_isian_komponen
echo a refused save: told at the foot, and the list shows what is there
#: main create trigger no_com before update on z_pay_com for each row signal sqlstate '45000' set message_text='not today';
click btn_edit
set edt_kode ZZZ
click btn_simpan
forms
get frm_menu.lbl_notice_dropped
grid dbg_comp
echo deleting: used by a rule stays, with money values alone it goes
#: main insert into z_pay_grp_com (com_id, grp_id, no_urut_ref) values (1, 1, 1);
#:+ insert into z_pay_money (com_id, grp_id, emp_id_auto, nilai_rp) values (2, 1, 1, 5)
click btn_select_all
answer 2
click btn_hapus
answer 1
click btn_hapus
grid dbg_comp
#: rows select com_id from z_pay_com
#: rows select com_id from z_pay_money
#: rows select log_note from user_log
