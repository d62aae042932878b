#include "run/form/left_out_list.h"

#include <utility>

using namespace Qt::StringLiterals;

base::TextList leftOutList(QList<QStringList> rows) {
    return {.form = u"frm_tanpa_baris"_s,
            .caption = u"Karyawan tanpa baris gaji"_s,
            .columns = {{u"pin"_s, u"PIN"_s}, {u"nik"_s, u"NIK"_s}, {u"nama"_s, u"Nama"_s}, {u"sebab"_s, u"Sebab"_s}},
            .rows = std::move(rows)};
}
