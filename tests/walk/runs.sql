delete from z_pay_process_m;
delete from z_pay_process_d;
delete from z_pay_process_sd;
insert into z_pay_process_m (process_id, process_name, date1, date2, round_value, tot_process) values
  (1, 'Lama', '2026-10-01', '2026-10-31', 0, 300);
insert into z_pay_process_d (process_id, no_urut, emp_id_auto, tot_payroll) values (1, 1, 1, 100), (1, 2, 3, 200);
insert into z_pay_process_sd (process_id, no_urut, no_urut_ref, emp_id_auto, com_id, subtot_payroll) values
  (1, 1, 1, 1, 10, 100), (1, 2, 2, 3, 10, 200);
replace into z_pay_grp_com (com_id, grp_id, no_urut_ref, use_if_sum, min_if, use_kode_if, id_kode_if, max_if, use_sum, use_kode_sum,
  id_kode_sum, operator_sum, konstanta_sum, operator_sum2, nilai_rp, hitung, jenis) values
  (50, 1, 4, 0, 0, -1, 0, 0, -1, 0, 17, 'T', 0, '+', 1000, 0, 0), (20, 1, 5, 0, 0, -1, 0, 0, -1, 0, 4, 'T', 0, '*', 20000, 0, 0);
