insert into cabang values(1, 'Pusat'), (3, 'Cabang D''Or');
insert into func values(1, 'Staf'), (2, 'Kepala');
insert into dept values(4, 'PT\\Produksi\\Las', 'Las'), (2, 'PT\\Produksi', 'Produksi'), (1, 'PT', 'PT'), (3, 'PT\\Umum', 'Umum');
insert into emp(emp_id_auto, pin, nik, first_name, last_name, cab_id_auto, dept_id_auto, func_id_auto, emp_status) values
  (-1, '0', '0', 'Tidak', 'Ada', 1, 1, 1, 0), (1, '1', 'N1', 'Ani', 'Putri', 1, 1, 1, 0),
  (2, 'A 2', 'N2', 'Anisa', null, 1, 2, 2, 0), (3, '3', 'N3', 'Ma''ruf', 'Ali', 3, 4, 1, 0),
  (4, '4', 'N4', 'Budi', 'Ani', 3, 3, 2, 0), (5, '5', 'N5', 'Ani', 'Keluar', 1, 2, 1, 1);
