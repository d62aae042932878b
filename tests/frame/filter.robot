# Every field of the filter on the recap, where the department limits each search.
#: options --user hrd --now "2026-11-05 08:00"
#: main-file company.sql
#: app insert into global_setting values('default_lang', 'indonesia'), ('tanggal_awal_proses', '2026-10-01'), ('tanggal_akhir_proses', '2026-10-31')
start
items TCB_dept
state edt_filter
state chb_sub
state btn_cari
state pnl_emp
echo PIN
choose cmb_filter PIN
type edt_filter "A 2"
click btn_cari
grid dbg_rekap
echo NIK: exact only
choose cmb_filter NIK
get edt_filter
type edt_filter N
click btn_cari
state dbg_rekap
type edt_filter N3
click btn_cari
grid dbg_rekap
echo name: from its start, an apostrophe is a letter, a percent sign is any text
choose cmb_filter Nama
type edt_filter Ani
click btn_cari
grid dbg_rekap
type edt_filter "Ma'"
click btn_cari
grid dbg_rekap
type edt_filter "%Ani"
click btn_cari
grid dbg_rekap
echo branch
choose cmb_filter Cabang
choose lookup_cab "Cabang D'Or"
click btn_cari
grid dbg_rekap
echo department with and without those below it
choose cmb_filter Departemen
state lookup_cab
choose TCB_dept PT/Produksi
get TCB_dept
click btn_cari
grid dbg_rekap
click chb_sub
click btn_cari
grid dbg_rekap
click TCB_dept
key Down
key Return
get TCB_dept
click btn_cari
grid dbg_rekap
echo function; without those below, the root alone is searched
choose cmb_filter Jabatan
choose lookup_jbt Kepala
click btn_cari
state dbg_rekap
choose cmb_filter Departemen
get TCB_dept
click chb_sub
choose cmb_filter Jabatan
choose lookup_jbt Kepala
click btn_cari
grid dbg_rekap
echo all
choose cmb_filter Semua
state lookup_jbt
click btn_cari
grid dbg_rekap
echo typed: the first Enter closes the list that dropped down, the second searches; the shortcut takes what stands there
choose cmb_filter Cabang
type lookup_cab "cabang d'or"
key Return
key Return
grid dbg_rekap
get lookup_cab
type lookup_cab Pusat
key Escape
key Alt+C
grid dbg_rekap
type lookup_cab nowhere
key Tab
get lookup_cab
echo Enter in the period
type dtp_tgl_aw 01-10-2026
key Return
grid dbg_rekap
echo a half-typed choice does not outlive the frame
type lookup_cab Pusat
