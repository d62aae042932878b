insert into global_setting values ('default_lang', 'indonesia'), ('change_lang', '1'), ('tanggal_awal_proses', '2026-10-01'), ('tanggal_akhir_proses', '2026-10-31'), ('use_payroll_module', '-1');
insert into user_login (login_id, group_id_auto) values ('hrd', 1);
