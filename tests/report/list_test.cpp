// The two lists, recap and detail, read as text.
#include "base/paper/captions.h"
#include "tests/report/paper.h"
#include "tests/report/payroll_papers.h"

using namespace Qt::StringLiterals;

namespace {

class Recap : public PayrollPapers {};
class Detail : public PayrollPapers {};

} // namespace

TEST_F(Recap, ListsTheEmployeesOfTheRunsByPinWithTheirNetPayAlsoWhoLeftAndWhomNobodyKnows) {
    pay(1, 10, 4000000);
    pay(1, 9, 2500500);
    pay(1, 11, 1000);
    pay(2, 10, 1000000);
    pay(2, 99, 2000);
    pay(3, 9, 777);
    EXPECT_EQ(paper(*reports.RekapPenggajian(runs({1, 2})), u"detail"_s), R"(  | 2.000
9 | N9 | Ani  | Operator | Bandung | 2.500.500
10 | N10 | Citra Dewi | Operator | Bandung | 5.000.000
11 | N11 | Eko  | Operator | Bandung | 1.000)");
}

TEST_F(Recap, EachPageEndsWithTheSumUpToThere) {
    for (int employee = 1; employee <= 130; ++employee)
        pay(1, employee, 100);
    EXPECT_EQ(paper(*reports.RekapPenggajian(runs({1})), u"footer"_s), R"(Total Gaji : | 5.700
Halaman |  :  | 1 | dari |  :  | 3 | Tgl. Cetak |  :  | 05/06/2026 14:03:09 | Oleh |  :  | budi
Total Gaji : | 11.400
Halaman |  :  | 2 | dari |  :  | 3 | Tgl. Cetak |  :  | 05/06/2026 14:03:09 | Oleh |  :  | budi
Total Gaji : | 13.000
Halaman |  :  | 3 | dari |  :  | 3 | Tgl. Cetak |  :  | 05/06/2026 14:03:09 | Oleh |  :  | budi)");
}

TEST_F(Recap, TakesItsFixedTextsFromTheLanguage) {
    database.runApp(uR"(
INSERT INTO change_lang (com_form, com_name, no_index, indonesia, english) VALUES
  ('frm_hitung_gaji', 'PPL_judul_rekap', -1, 'Rekap', 'PAYROLL SUMMARY'),
  ('frm_hitung_gaji', 'ppl_pin', -1, 'PIN', ''''''), ('frm_hitung_gaji', 'lbl_emp', -1, 'a', 'b'),
  ('frm_kredit_emp', 'ppl_nik', -1, 'x', 'y');
)"_s);
    pay(1, 9, 1000);
    captions = base::paper::captionsOf(session, u"frm_hitung_gaji"_s, payroll::defaultCaptions(), u"english"_s);
    EXPECT_EQ(paper(*reports.RekapPenggajian(runs({1})), u"header"_s), R"(PAYROLL SUMMARY
Nama Perusahaan |  :  | PT Contoh
Tgl. Periode |  :  | 01/05/2026 |  s/d  | 31/05/2026
PIN | NIK | Nama karyawan | Jabatan | Cabang | Jumlah Gaji)");
    captions =
        base::paper::captionsOf(session, u"frm_hitung_gaji"_s, payroll::defaultCaptions(), u"no_such_language"_s);
    EXPECT_EQ(paper(*reports.RekapPenggajian(runs({1})), u"header"_s).substr(0, 24), "LAPORAN REKAP PENGGAJIAN");
}

TEST_F(Detail, KeepsAnEmployeeOnOnePage) {
    for (const int employee : {9, 10})
        pay(1, employee, 465000, lines(11, 30));
    const report::Document document = reports.RincianPenggajian(runs({1}));
    QList<qsizetype> earnings;
    for (const report::Page& page : document.pages)
        earnings << std::ranges::count(page.marks, u"earning"_s, &report::Mark::band);
    EXPECT_EQ(earnings, (QList<qsizetype>{30 * 4, 30 * 4})) << "code, name, factor, amount";
}
