// The two lists, recap and detail, read as text.
#include "tests/report/paper.h"
#include "tests/report/payroll_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class Recap : public PayrollPapers {};
class Detail : public PayrollPapers {};

} // namespace

TEST_F(Recap, ListsTheEmployeesOfTheRunsByPinWithTheirNetPay) {
    employee(10, u"Citra Dewi"_s);
    employee(9, u"Ani"_s);
    employee(11, u"Eko Tidak Digaji"_s);
    pay(1, 10, 4000000, {});
    pay(1, 9, 2500500, {});
    pay(2, 10, 1000000, {});
    pay(3, 11, 777, {});
    EXPECT_EQ(paper(*reports.RekapPenggajian(runs({1, 2}))), R"(page 1 of 1
LAPORAN REKAP PENGGAJIAN
Nama Perusahaan |  :  | PT Contoh
Tgl. Periode |  :  | 01/05/2026 |  s/d  | 31/05/2026
PIN | NIK | Nama karyawan | Jabatan | Cabang | Jumlah Gaji
9 | N9 | Ani  | Operator | Bandung | 2.500.500
10 | N10 | Citra Dewi | Operator | Bandung | 5.000.000
Total Gaji : | 7.500.500
Halaman |  :  | 1 | dari |  :  | 1 | Tgl. Cetak |  :  | 05/06/2026 14:03:09 | Oleh |  :  | budi)");
}

TEST_F(Recap, NamesWhoResignedAndPaysWhomNobodyKnowsAnyMore) {
    employee(1, u"Ani Pergi"_s);
    pay(1, 1, 1000, {});
    pay(1, 2, 2000, {});
    database.run(u"UPDATE emp SET emp_status=1"_s);
    EXPECT_EQ(paper(*reports.RekapPenggajian(runs({1})), u"detail"_s),
              "  | 2.000\n1 | N1 | Ani Pergi | Operator | Bandung | 1.000");
}

TEST_F(Recap, EachPageEndsWithTheSumUpToThere) {
    for (int i = 1; i <= 130; ++i)
        pay(1, i, 100, {});
    const report::Document document = *reports.RekapPenggajian(runs({1}));
    const int perPage = int(std::ranges::count(document.pages[0].marks, u"100"_s, &report::Mark::text));
    EXPECT_GT(perPage, 50);
    QStringList expected;
    for (int number = 1; number <= 3; ++number) {
        const int records = std::min(130, number * perPage);
        expected
            << u"Total Gaji : | %1"_s.arg(records == 130 ? u"13.000"_s
                                                         : QLocale(QLocale::Indonesian).toString(records * 100))
            << u"Halaman |  :  | %1 | dari |  :  | 3 | Tgl. Cetak |  :  | 05/06/2026 14:03:09 | Oleh |  :  | budi"_s
                   .arg(number);
    }
    EXPECT_EQ(paper(document, u"footer"_s), expected.join(u'\n').toStdString());
}

TEST_F(Recap, WithoutEmployeesThereIsNone) {
    pay(1, 1, 1000, {});
    EXPECT_EQ(reports.RekapPenggajian(runs({2})), std::nullopt);
}

TEST_F(Detail, ShowsEarningsAndDeductionsOfEachEmployee) {
    add({.com_id = 1, .com_name = u"Gaji Pokok"_s, .cara_bayar = Transfer});
    add({.com_id = 2, .com_name = u"Uang Makan"_s});
    add({.com_id = 3, .com_name = u"Lembur"_s});
    add({.com_id = 9, .com_name = u"Pinjaman Koperasi"_s, .type = 1});
    rule(2, 0);
    rule(3, 1);
    employee(1, u"Ani Lestari"_s);
    employee(2, u"Budi Santoso"_s);
    pay(1, 1, 4300000,
        {{3, 100000, u"* 20.000"_s, 5},
         {1, 4000000, u"* 4.000.000"_s},
         {2, 500000, u"* 25.000"_s, 20},
         {9, 300000, u" x Angsuran"_s}});
    pay(1, 2, 3000000, {{1, 3000000, u"* 3.000.000"_s}});
    EXPECT_EQ(paper(reports.RincianPenggajian(runs({1}))), R"(page 1 of 1
LAPORAN RINCIAN PENGGAJIAN
Nama Perusahaan |  :  | PT Contoh
Tgl. Periode |  :  | 01/05/2026 |  s/d  | 31/05/2026
PIN |  :  | 1 | Nama |  :  | Ani Lestari | Jabatan |  :  | Operator
NIK |  :  | N1 | Departemen |  :  | Produksi | Gaji diterima |  :  | 4.300.000
Kode | Komponen gaji | Keterangan | Jumlah Uang
K1 | Gaji Pokok | 1 | * 4.000.000 | 4.000.000
K2 | Uang Makan | 20 | * 25.000 | 500.000
K3 | Lembur | 100.000
Total penerimaan | 4.600.000
K9 | Pinjaman Koperasi | 1 |  x Angsuran | 300.000
Total potongan | 300.000
PIN |  :  | 2 | Nama |  :  | Budi Santoso | Jabatan |  :  | Operator
NIK |  :  | N2 | Departemen |  :  | Produksi | Gaji diterima |  :  | 3.000.000
Kode | Komponen gaji | Keterangan | Jumlah Uang
K1 | Gaji Pokok | 1 | * 3.000.000 | 3.000.000
Total penerimaan | 3.000.000
Total potongan | 0
Halaman |  :  | 1 | dari |  :  | 1 | Tgl. Cetak |  :  | 05/06/2026 14:03:09 | Oleh |  :  | budi)");
}

TEST_F(Detail, KeepsAnEmployeeOnOnePage) {
    for (int com_id = 1; com_id <= 30; ++com_id)
        add({.com_id = com_id, .com_name = u"Komponen"_s});
    for (int emp = 1; emp <= 2; ++emp) {
        QList<Line> lines;
        for (int com_id = 1; com_id <= 30; ++com_id)
            lines << Line{com_id, 1000.0 * com_id};
        pay(1, emp, 465000, lines);
    }
    const report::Document document = reports.RincianPenggajian(runs({1}));
    ASSERT_EQ(document.pages.size(), 2u);
    for (const report::Page& page : document.pages)
        EXPECT_EQ(std::ranges::count(page.marks, u"earning"_s, &report::Mark::band), 30 * 4)
            << "code, name, factor, amount";
}

TEST_F(Detail, WithoutEmployeesThereIsAnEmptyPage) {
    EXPECT_EQ(paper(reports.RincianPenggajian(runs({5}))), R"(page 1 of 1
LAPORAN RINCIAN PENGGAJIAN
Nama Perusahaan |  :  | PT Contoh
Tgl. Periode |  :  | 01/05/2026 |  s/d  | 31/05/2026
Halaman |  :  | 1 | dari |  :  | 1 | Tgl. Cetak |  :  | 05/06/2026 14:03:09 | Oleh |  :  | budi)");
}

TEST_F(Recap, TakesItsFixedTextsFromTheLanguage) {
    database.runApp(uR"(
INSERT INTO change_lang (com_form, com_name, no_index, indonesia, english) VALUES
  ('frm_hitung_gaji', 'PPL_judul_rekap', -1, 'Rekap', 'PAYROLL SUMMARY'),
  ('frm_hitung_gaji', 'ppl_pin', -1, 'PIN', ''''''), ('frm_hitung_gaji', 'lbl_emp', -1, 'a', 'b'),
  ('frm_kredit_emp', 'ppl_nik', -1, 'x', 'y');
)"_s);
    pay(1, 1, 1000, {});
    captions = payroll::captionsOf(session, u"english"_s);
    const std::string header = paper(*reports.RekapPenggajian(runs({1})), u"header"_s);
    EXPECT_EQ(header, R"(PAYROLL SUMMARY
Nama Perusahaan |  :  | PT Contoh
Tgl. Periode |  :  | 01/05/2026 |  s/d  | 31/05/2026
PIN | NIK | Nama karyawan | Jabatan | Cabang | Jumlah Gaji)");
    captions = payroll::captionsOf(session, u"no_such_language"_s);
    EXPECT_EQ(paper(*reports.RekapPenggajian(runs({1})), u"header"_s).substr(0, 24), "LAPORAN REKAP PENGGAJIAN");
}
