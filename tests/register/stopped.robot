# A deletion and a search that are stopped leave the run, the lists and the ticks as they were.
#: options --user hrd --now "2026-11-05 08:15"
#: app-file app.sql
#: main-file company.sql
#: main create trigger slow before delete on z_pay_process_sd for each row set @slept=sleep(30);
#:+ insert into z_pay_process_m (process_id, process_name, date1, date2) values (90, 'Lambat', '2026-10-10', '2026-10-20');
#:+ insert into z_pay_process_d (process_id, no_urut, emp_id_auto, tot_payroll) values (90, 1, 1, 5);
#:+ insert into z_pay_process_sd (process_id, no_urut, no_urut_ref, emp_id_auto, com_id, subtot_payroll) values (90, 1, 1, 1, 10, 5)
start
click Image2
tick dbg_m process_name=Lambat
answer 1
watch
click btn_hapus
click frm_menu.btn_batal_tunggu
grid dbg_m
grid dbg_d
#: rows select (select count(*) from z_pay_process_m where process_id=90), (select count(*) from z_pay_process_d where process_id=90), (select count(*) from z_pay_process_sd where process_id=90)
tick dbg_m process_name=Lambat
#: main lock tables z_pay_process_m write
watch
click btn_cari
click frm_menu.btn_batal_tunggu
#: main unlock tables
grid dbg_m
grid dbg_d
