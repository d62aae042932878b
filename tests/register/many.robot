# 201 ticked employees are all computed and saved, and a message warns; 200 pass in silence.
#: company 260 1
#: options --user hrd --now "2026-11-05 08:15"
#: main update z_pay_grp_emp set grp_id=(select min(grp_id) from z_pay_grp);
#:+ update emp set emp_status=0 where emp_id_auto<>-1;
#:+ delete from z_pay_grp_emp where emp_id_auto > (select n from (select emp_id_auto as n from z_pay_grp_emp order by emp_id_auto limit 200, 1) as x)
start
click Image2
click btn_tambah
click btn_select_all
click btn_select_all2
click chb_emp
click btn_sel_all
get lbl_jml
click btn_proses
type dbe_nama "Banyak"
click btn_simpan
#: rows select count(*), min(no_urut), max(no_urut) from z_pay_process_d
click btn_tambah
click btn_select_all
click btn_select_all2
#: main delete from z_pay_grp_emp where emp_id_auto = (select n from (select max(emp_id_auto) as n from z_pay_grp_emp) as x)
click chb_emp
click btn_sel_all
get lbl_jml
click btn_proses
