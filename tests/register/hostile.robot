# Names that look like markup, carry shortcut marks, run from right to left, lie beyond 16 bits or never end.
#: options --user "<b>hrd</b> &x" --user PT --user 3 --user "4 4" --user 5 --now "2026-11-05 08:15"
#: app-file app.sql
#: main-file company.sql
#: main update emp set first_name='<img src=/etc/hostname>&Cari\nDua\nTiga', last_name=repeat('W', 200) where emp_id_auto=1;
#:+ update emp set first_name='<b>x</b> 🙂𐐀', last_name='محمد' where emp_id_auto=2;
#:+ update z_pay_com set com_name='<font color=red>&Gaji</font>' where com_id=10;
#:+ insert into z_pay_process_m (process_id, process_name, date1, date2, round_value) values
#:+   (1, repeat('<b>N</b>', 31), '2026-10-06', '2026-10-31', 5000000);
#:+ insert into z_pay_process_d (process_id, no_urut, emp_id_auto, tot_payroll) values (1, 1, 1, 100), (1, 2, 2, 200), (1, 3, 5, 300);
#:+ insert into z_pay_process_sd (process_id, no_urut, no_urut_ref, emp_id_auto, com_id, subtot_payroll, jml_faktor) values
#:+   (1, 1, 1, 1, 10, 100, 100000), (1, 1, 2, 1, 20, 50, 2.5), (1, 1, 3, 1, 50, 50, 1234.25), (1, 2, 4, 2, 10, 200, 1), (1, 3, 5, 5, 10, 300, 22)
start
get StatusBar
click Image2
row dbg_m #1
get lbl_emp_isi
get lbl_tunjangan_isi
tick dbg_m *
click btn_edit
get lbl_nama_emp
get dbe_bulat
grid dbg_sd
echo what is current stays current
row dbg_sd com_kode=BNS
click btn_hitung
grid dbg_sd
click btn_hapus2
grid dbg_sd
row dbg_d pin="A 2"
click btn_hitung
grid dbg_d
click btn_hapus
grid dbg_d
get lbl_nama_emp
