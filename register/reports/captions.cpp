#include "register/reports/captions.h"

using namespace Qt::StringLiterals;

namespace payroll {

report::Captions defaultCaptions() {
    return {
        {u"ppl_judul_rekap"_s, u"LAPORAN REKAP PENGGAJIAN"_s},
        {u"ppl_judul_rincian"_s, u"LAPORAN RINCIAN PENGGAJIAN"_s},
        {u"ppl_nama_perusahaan"_s, u"Nama Perusahaan"_s},
        {u"ppl_periode"_s, u"Tgl. Periode"_s},
        {u"ppl_sampai_dengan"_s, u" s/d "_s},
        {u"ppl_pin"_s, u"PIN"_s},
        {u"ppl_nik"_s, u"NIK"_s},
        {u"ppl_nama"_s, u"Nama"_s},
        {u"ppl_nama_karyawan"_s, u"Nama karyawan"_s},
        {u"ppl_nama_karyawan_slip"_s, u"Nama Karyawan"_s},
        {u"ppl_jabatan"_s, u"Jabatan"_s},
        {u"ppl_cabang"_s, u"Cabang"_s},
        {u"ppl_departemen"_s, u"Departemen"_s},
        {u"ppl_jumlah_gaji"_s, u"Jumlah Gaji"_s},
        {u"ppl_total_gaji"_s, u"Total Gaji :"_s},
        {u"ppl_gaji_diterima"_s, u"Gaji diterima"_s},
        {u"ppl_kode"_s, u"Kode"_s},
        {u"ppl_komponen"_s, u"Komponen gaji"_s},
        {u"ppl_keterangan"_s, u"Keterangan"_s},
        {u"ppl_jumlah_uang"_s, u"Jumlah Uang"_s},
        {u"ppl_total_penerimaan"_s, u"Total penerimaan"_s},
        {u"ppl_total_potongan"_s, u"Total potongan"_s},
        {u"ppl_penerimaan"_s, u"Penerimaan ( + )"_s},
        {u"ppl_potongan"_s, u"Potongan ( - )"_s},
        {u"ppl_total_penerimaan_slip"_s, u"Total Penerimaan:"_s},
        {u"ppl_total_potongan_slip"_s, u"Total Potongan:"_s},
        {u"ppl_gaji_yang_diterima"_s, u"Gaji yang diterima:"_s},
        {u"ppl_diserahkan"_s, u"Diserahkan oleh,"_s},
        {u"ppl_diterima"_s, u"Diterima oleh,"_s},
        {u"ppl_halaman"_s, u"Halaman"_s},
        {u"ppl_dari"_s, u"dari"_s},
        {u"ppl_tgl_cetak"_s, u"Tgl. Cetak"_s},
        {u"ppl_oleh"_s, u"Oleh"_s},
    };
}

} // namespace payroll
