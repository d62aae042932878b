# The recap of a small company: sums, days, the ends of the period, totals beside their parts, colours.
#: options --user hrd --now "2026-11-05 08:00"
#: main-file company.sql
#: app insert into global_setting values('default_lang', 'indonesia'), ('tanggal_awal_proses', '2026-10-01'), ('tanggal_akhir_proses', '2026-10-31'),
#:+   ('cl_tampil_grid_set', '-1'), ('cl_terlambat_set', '0'), ('cl_cepat_set', '-1'), ('cl_terlambat', 'clYellow'),
#:+   ('cl_cepat', '$0080FF'), ('cl_absen', '255'), ('cl_absen_izin', 'clSkyBlue'), ('cl_libur', '0xC0C0C0')
#: main insert into shift_result(emp_id_auto, shift_date, valid, late, early, total_ot, duration, holiday, shift_ot, break1, max_break, break2, max_break2) values
#:+   (1, '2026-09-30', 0, 9, 9, 9, 9, 0, 0, 0, 0, 0, 0), (1, '2026-11-01', 0, 9, 9, 9, 9, 0, 0, 0, 0, 0, 0),
#:+   (1, '2026-10-01', 0, 0.3, 0, 1.5, 8, 0, 0, 1, 0.5, 0, 1), (1, '2026-10-01', 0, 0.1, 1, 2, 0, 0, 0, 1, 0, 1, 0),
#:+   (1, '2026-10-31', 0, -0.2, -0.4, 3, 5, -1, -1, 0, 0, 0, 0), (1, '2026-10-02', 1, 7, 7, 7, 7, 0, 0, 0, 0, 0, 0),
#:+   (2, '2026-10-05', 0, 1.25, 0.4, 0, 8, 0, 0, 0, 0, 0, 0), (2, '2026-10-06', 0, 0, 0.2, 4, 8, -1, 0, 0, 0, 0, 0);
#:+ insert into holiday values('2026-10-31'), ('2026-12-25');
#:+ insert into date_temp values(1, '2026-10-07', 1, 8, 0), (2, '2026-10-07', 2, 0, 0), (2, '2026-10-08', 3, 0, 0),
#:+   (2, '2026-10-09', 4, 0, 0), (2, '2026-10-12', 5, 0, 0), (2, '2026-10-11', 6, 0, -1), (2, '2026-10-13', 7, 0, 0),
#:+   (3, '2026-10-07', 8, 0, 0), (3, '2026-10-07', 9, 0, 0), (3, '2026-11-01', 9, 0, 0);
#:+ insert into ex_absent values(3, '2026-10-01', 10, 1.5), (3, '2026-10-02', 11, 2.5), (3, '2026-10-03', 12, 3.5), (3, '2026-10-03', 12, 1)
start
get lbl_judul
get lbl_tgl
grid dbg_rekap
colors dbg_rekap
echo one day
set dtp_tgl_akh 2026-10-01
click btn_cari
grid dbg_rekap
get lbl_tgl
echo days instead of amounts; the settings of colours are not read again
#: main insert into sum_report values(1, 2), (2, 2), (3, 2), (4, 2), (13, 2), (14, 3), (15, 2), (16, 3)
#: app update global_setting set param_value='0' where param_id='cl_tampil_grid_set'
set dtp_tgl_akh 2026-10-31
click btn_cari
grid dbg_rekap
colors dbg_rekap
start
colors dbg_rekap
#: app update global_setting set param_value=if(param_id='cl_cepat_set', '0', '-1') where param_id like 'cl\_%\_set'
start
colors dbg_rekap
echo a search that the server refuses leaves the rows
#: main alter table date_temp change absent_id elsewhere smallint
click btn_cari
state dbg_rekap
grid dbg_rekap
