# A session of one branch: its groups, its employees of a run, and runs in which one of them took part.
#: options --user hrd --now "2026-11-05 08:15" --admin-id "x:2"
#: app-file app.sql
#: main-file company.sql
#: main insert into z_pay_process_m (process_id, process_name, date1, date2) values
#:+   (1, 'Kami', '2026-10-10', '2026-10-20'), (2, 'Mereka', '2026-10-10', '2026-10-20');
#:+ insert into z_pay_process_d (process_id, no_urut, emp_id_auto, tot_payroll) values (1, 1, 1, 10), (1, 2, 3, 20), (2, 1, 1, 30);
start
click Image2
grid dbg_m
grid dbg_d
click btn_tambah
grid dbg_grp
tick dbg_grp *
click btn_select_all2
click btn_proses
grid dbg_d
click chb_emp
items clb_emp
