#include "tools/company/organisation.h"

#include "tools/company/bulk_insert.h"

using namespace Qt::StringLiterals;

namespace company {

const QList<Function>& functions() {
    static const QList<Function> list = {
        {u"Direktur"_s, Manajemen, 28000, 40000, 10, {1}},
        {u"Manajer"_s, Manajemen, 13000, 22000, 50, {2, 6, 9, 13, 16}},
        {u"Supervisor"_s, Staf, 7500, 10500, 90, {3, 4, 5, 10, 14, 17}},
        {u"Staf Administrasi"_s, Staf, 4900, 6500, 140, {7, 8, 11, 12, 15}},
        {u"Akuntan"_s, Staf, 6000, 9000, 60, {7, 8}},
        {u"Tenaga Penjualan"_s, Staf, 4700, 7200, 100, {14, 15}},
        {u"Operator Produksi"_s, Produksi, 4200, 5200, 290, {3, 4}},
        {u"Teknisi"_s, Produksi, 4800, 6800, 70, {5}},
        {u"Petugas Gudang"_s, Produksi, 4200, 4900, 80, {17, 18}},
        {u"Satpam"_s, Keamanan, 4200, 4800, 40, {12}},
        {u"Pekerja Harian"_s, Harian, 3750, 4500, 70, {3, 18}},
    };
    return list;
}

const QList<QString>& branches() {
    static const QList<QString> list = {u"Kantor Pusat Bandung"_s, u"Cabang Semarang"_s, u"Cabang Surabaya"_s};
    return list;
}

const QList<QString>& departments() {
    static const QList<QString> list = {
        uR"(PT Mandala Citra Pangan)"_s,
        uR"(PT Mandala Citra Pangan\Produksi)"_s,
        uR"(PT Mandala Citra Pangan\Produksi\Pengolahan)"_s,
        uR"(PT Mandala Citra Pangan\Produksi\Pengemasan)"_s,
        uR"(PT Mandala Citra Pangan\Produksi\Pemeliharaan)"_s,
        uR"(PT Mandala Citra Pangan\Keuangan)"_s,
        uR"(PT Mandala Citra Pangan\Keuangan\Akuntansi)"_s,
        uR"(PT Mandala Citra Pangan\Keuangan\Pajak & Kas)"_s,
        uR"(PT Mandala Citra Pangan\SDM dan Umum)"_s,
        uR"(PT Mandala Citra Pangan\SDM dan Umum\Personalia)"_s,
        uR"(PT Mandala Citra Pangan\SDM dan Umum\Pelatihan)"_s,
        uR"(PT Mandala Citra Pangan\SDM dan Umum\Umum & Keamanan)"_s,
        uR"(PT Mandala Citra Pangan\Penjualan)"_s,
        uR"(PT Mandala Citra Pangan\Penjualan\Wilayah Barat)"_s,
        uR"(PT Mandala Citra Pangan\Penjualan\Wilayah Timur)"_s,
        uR"(PT Mandala Citra Pangan\Gudang)"_s,
        uR"(PT Mandala Citra Pangan\Gudang\Bahan Baku)"_s,
        uR"(PT Mandala Citra Pangan\Gudang\Barang Jadi)"_s,
    };
    return list;
}

void writeOrganisation(db::Connection& main) {
    BulkInsert cabang(main, "cabang (cab_id_auto, cab_name)");
    for (int i = 0; i < branches().size(); ++i)
        cabang.row(i + 1, branches()[i]);
    cabang.finish();

    BulkInsert dept(main, "dept (dept_id_auto, dept_name, level_id)");
    for (int i = 0; i < departments().size(); ++i)
        dept.row(i + 1, departments()[i], departments()[i].section(u'\\', -1));
    dept.finish();

    BulkInsert func(main, "func (func_id_auto, func_name)");
    for (int i = 0; i < functions().size(); ++i)
        func.row(i + 1, functions()[i].name);
    func.finish();
}

} // namespace company
