#include "frame/recap.h"

using namespace Qt::StringLiterals;

namespace frame::recap {

namespace {

struct Column {
    const char16_t* caption;
    const char16_t* field;
    bool hidden = false;
};

struct Band {
    const char16_t* name;
    const char16_t* caption;
    std::vector<Column> columns;
};

const std::vector<Band>& layout() {
    static const std::vector<Band> all{
        {u"bnd_karyawan",
         u"Karyawan",
         {{u"PIN", u"pin"},
          {u"NIK", u"nik"},
          {u"Nama", u"nama"},
          {u"Cabang", u"cab_name"},
          {u"Departemen", u"level_id"},
          {u"Level Departemen", u"dept_name", true},
          {u"Jabatan", u"func_name"},
          {u"Alamat", u"address", true},
          {u"Telp.", u"phone", true},
          {u"No KTP", u"ssn", true}}},
        {u"bnd_tambahan",
         u"Tambahan",
         {{u"Kehadiran", u"kehadiran"},
          {u"Terlambat", u"late"},
          {u"Pulang Cepat", u"early"},
          {u"Istirahat Lebih", u"istirahat_lebih"}}},
        {u"bnd_hadir",
         u"Hadir",
         {{u"Total", u"hadir"},
          {u"Normal", u"hadir_normal"},
          {u"Libur", u"hadir_libur"},
          {u"Libur Umum", u"hadir_libur_umum"},
          {u"Libur Rutin", u"hadir_libur_rutin"},
          {u"Izin", u"hadir_izin", true}}},
        {u"bnd_tidak_hadir",
         u"Tidak Hadir",
         {{u"Tidak Hadir", u"tidak_hadir"},
          {u"Izin", u"izin"},
          {u"Cuti", u"cuti"},
          {u"Sakit", u"sakit"},
          {u"Libur", u"libur"}}},
        {u"bnd_lembur",
         u"Lembur",
         {{u"Total", u"lembur"},
          {u"Normal", u"lembur_normal"},
          {u"Libur", u"lembur_libur"},
          {u"Libur Umum", u"lembur_libur_umum"},
          {u"Libur Rutin", u"lembur_libur_rutin"},
          {u"Jam", u"lembur_jam"},
          {u"Shift", u"lembur_shift"}}},
        {u"bnd_cadangan", u"Cadangan", {{u" 1 ", u"cadangan1"}, {u" 2 ", u"cadangan2"}, {u" 3 ", u"cadangan3"}}},
        {u"bnd_aktifitas", u"Aktifitas", {{u"Kerja", u"aktiv"}, {u"Bukan Kerja", u"aktiv2"}, {u"Lain", u"aktiv3"}}},
    };
    return all;
}

QString text(const char16_t* literal) {
    return QString::fromUtf16(literal);
}

} // namespace

std::vector<BandPlan> bands() {
    std::vector<BandPlan> plans;
    for (const Band& band : layout())
        plans.push_back({text(band.name), text(band.caption)});
    return plans;
}

std::vector<ColumnPlan> columns() {
    std::vector<ColumnPlan> plans;
    for (const Band& band : layout())
        for (const Column& column : band.columns)
            plans.push_back({.field = text(column.field),
                             .caption = text(column.caption),
                             .hidden = column.hidden,
                             .band = text(band.name)});
    return plans;
}

} // namespace frame::recap
