insert into cabang values (1, 'Pusat'), (2, 'Bandung');
insert into dept values (1, 'PT Uji', 'PT Uji');
insert into func values (1, 'Staf');
insert into emp (emp_id_auto, pin, nik, cab_id_auto, dept_id_auto, func_id_auto, first_name, last_name, emp_status) values
  (-1, '0', '0', 1, 1, 1, 'Reserved', null, 0), (1, '1', 'N1', 1, 1, 1, 'Ani', null, 0),
  (2, 'A 2', 'N2', 1, 1, 1, 'Budi', 'Raya', 0), (3, '10', 'N3', 2, 1, 1, 'Citra', 'Dewi', 0),
  (4, '4', 'N4', 2, 1, 1, 'Dedi', 'Keluar', 1), (5, '5', 'N5', 1, 1, 1, 'Eka', 'O''Hara', 0);
insert into z_pay_grp (grp_id, kode_grp, grp_name) values (1, 'STF', 'Staf'), (2, 'HRN', 'Harian');
insert into z_pay_grp_emp (grp_id, emp_id_auto) values (1, 1), (1, 2), (1, 5), (2, 3), (2, 4), (2, 5);
insert into z_pay_com (com_id, com_kode, com_name, type, no_urut, param, cara_bayar, pinjaman) values
  (10, 'GP', 'Gaji Pokok', 0, 5, -1, 0, 0), (20, 'MKN', 'Uang Makan', 0, 10, 0, 0, 0), (30, 'KOP', 'Koperasi', 1, 15, 0, 1, 0),
  (40, 'PJM', 'Pinjaman', 1, 20, 0, 0, -1), (50, 'BNS', 'Bonus', 0, 7, 0, 0, 0);
insert into z_pay_grp_com (com_id, grp_id, no_urut_ref, use_if_sum, min_if, use_kode_if, id_kode_if, max_if, use_sum, use_kode_sum, id_kode_sum,
  operator_sum, konstanta_sum, operator_sum2, nilai_rp, hitung, jenis) values
  (10, 1, 1, 0, 0, -1, 0, 0, 0, -1, 0, 'T', 0, 'T', 4750300.5, 0, 0), (20, 1, 2, 0, 0, -1, 0, 0, -1, 0, 4, 'T', 0, '*', 20000, 0, 0),
  (30, 1, 3, 0, 0, -1, 0, 0, 0, -1, 0, 'T', 0, 'T', 120000, 0, 0), (10, 2, 1, 0, 0, -1, 0, 0, 0, -1, 0, 'T', 0, 'T', 3000000, 0, 0),
  (50, 2, 2, 0, 0, -1, 0, 0, 0, -1, 0, 'T', 0, 'T', 250000, 0, 0);
insert into z_pay_money (com_id, grp_id, emp_id_auto, nilai_rp) values (10, 1, 2, 5000000);
insert into sum_report (sum_id, sum_as) values (4, 2);
insert into shift_result (emp_id_auto, shift_date, valid, late, early, total_ot, duration, holiday, shift_ot) values
  (1, '2026-10-01', 0, 0, 0, 0, 8, 0, 0), (1, '2026-10-31', 0, 0, 0, 0, 8, 0, 0), (1, '2026-11-01', 0, 0, 0, 0, 8, 0, 0);
insert into zx_jns_krd (krd_id, krd_kode, krd_name, com_id) values (1, 'KTA', 'Kredit', 40);
insert into zx_kredit_m (id_kredit, no_kredit, emp_id_auto, krd_id) values (1, 'K1', 1, 1), (2, 'K2', 1, 1);
insert into zx_bayar_kredit (id_bayar, tgl_bayar, id_kredit, no_urut, debet, emp_id_auto) values (1, '2026-10-31', 1, 1, 100000, 1),
  (2, '2026-10-01', 2, 1, 50000, 1), (3, '2026-09-15', 1, 2, 70000, 1);
