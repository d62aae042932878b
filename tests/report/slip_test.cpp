// The pay slip read as text.
#include "register/reports/print_rules.h"
#include "tests/report/paper.h"
#include "tests/report/payroll_papers.h"
#include "toolkit/report/type_setter.h"

using namespace Qt::StringLiterals;

namespace {

class Slip : public PayrollPapers {
protected:
    [[nodiscard]] std::string slips(const QList<qint64>& ids, const QString& band) {
        return paper(reports.SlipGaji(runs(ids)), band);
    }
};

double topOf(const report::Document& document, const QString& text) {
    const auto& marks = document.pages[0].marks;
    const auto mark = std::ranges::find(marks, text, &report::Mark::text);
    return mark == marks.end() ? -1 : mark->box.top();
}

} // namespace

TEST_F(Slip, NamesTheWholeDepartmentAndCountsALineThatIsTheSameInTwoRunsOnceButPaysBoth) {
    pay(1, 9, 4100000, {{1, 4000000, u"* 4.000.000"_s}, {2, 100000, u"* 20.000"_s, 5}});
    pay(2, 9, 4040000, {{1, 4000000, u"* 4.000.000"_s}, {2, 40000, u"* 20.000"_s, 2}});
    EXPECT_EQ(slips({1, 2}, u"head"_s),
              "Nama Perusahaan |  :  | PT Contoh | NIK |  :  | N9\n"
              "Tgl. Periode |  :  | 01/05/2026 |  s/d  | 31/05/2026 | Nama Karyawan |  :  | Ani \n"
              "Departemen |  :  | PT Contoh\\Produksi | Jabatan |  :  | Operator");
    EXPECT_EQ(slips({1, 2}, u"earning"_s), "Penerimaan ( + )\nK1 | Nama 1 | 1 | * 4.000.000 | = | 4.000.000\n"
                                           "K2 | Nama 2 | 7 | * 20.000 | = | 140.000\nTotal Penerimaan: | 4.140.000");
    EXPECT_EQ(slips({1, 2}, u"foot"_s).substr(0, 31), "Gaji yang diterima: | 8.140.000");
}

TEST_F(Slip, UnderlinesTransfersAndDeductionsAfterTheLastEarning) {
    database.run(u"UPDATE z_pay_com SET cara_bayar=1 WHERE com_id IN (2, 109)"_s);
    pay(1, 9, 1, {{1, 1}, {2, 2}, {108, 3}, {109, 4}});
    pay(1, 10, 1, {{1, 1}, {2, 2}, {3, 3}, {108, 4}, {109, 5}});
    pay(1, 11, 1, {{108, 4}, {109, 5}});
    const report::Document document = reports.SlipGaji(runs({1}));
    QStringList codes;
    for (const report::Mark& mark : document.pages[0].marks)
        if (mark.text.startsWith(u'K'))
            codes << (mark.look.underline ? u'_' + mark.text : mark.text);
    EXPECT_EQ(codes.join(u' '), u"K1 _K2 _K108 _K109 K1 _K2 K3 K108 K109 K108 K109"_s);
}

TEST_F(Slip, LeavesFactorAndUnitOfTieredAndReplacingLinesBlank) {
    pay(1, 9, 1, {{5, 10, u"* 4"_s, 2.5}, {6, 20, u"* 5"_s, 2}, {7, 30, u"* 6"_s, 2}});
    EXPECT_EQ(slips({1}, u"earning"_s), "Penerimaan ( + )\nK5 | Nama 5 | 2,50 | * 4 | = | 10\n"
                                        "K6 | Nama 6 | = | 20\nK7 | Nama 7 | = | 30\nTotal Penerimaan: | 60");
    database.run(u"DELETE FROM z_pay_grp_emp"_s);
    EXPECT_EQ(slips({1}, u"earning"_s), "Penerimaan ( + )\nK5 | Nama 5 | 2,50 | * 4 | = | 10\n"
                                        "K6 | Nama 6 | 2 | * 5 | = | 20\nK7 | Nama 7 | 2 | * 6 | = | 30\n"
                                        "Total Penerimaan: | 60")
        << "who has left the group has no rule any more";
}

TEST(PrintRules, AFactorShowsDecimalsOnlyWhereTwoPlacesHoldAny) {
    const std::pair<double, const char*> cases[] = {
        {2.5, "2,50"}, {2, "2"},        {2.004, "2"},      {2.006, "2,01"},       {0, "0"},
        {0.995, "1"},  {-0.5, "-0,50"}, {12345, "12.345"}, {1234.25, "1.234,25"},
    };
    for (const auto& [faktor, text] : cases)
        EXPECT_EQ(payroll::faktorText(faktor).toStdString(), text) << faktor;
}

TEST_F(Slip, ItsFootStandsBelowTheLongerList) {
    struct Case {
        int earnings, deductions;
        double inches; ///< from the top of the earnings summary
    };
    int run = 0;
    for (const Case& each : {Case{3, 3, 0.2292}, Case{3, 4, 0.4192}, Case{3, 10, 1.5592}, Case{10, 3, 0.2292}}) {
        pay(++run, 9, 1, lines(1, each.earnings) + lines(101, each.deductions));
        const report::Document document = reports.SlipGaji(runs({run}));
        EXPECT_NEAR(topOf(document, u"Gaji yang diterima:"_s) - topOf(document, u"Total Penerimaan:"_s),
                    each.inches * 25.4, 0.01)
            << each.earnings << " " << each.deductions;
    }
}

TEST_F(Slip, LongNamesOfDeductionsPushTheFootFurther) {
    database.run(
        u"UPDATE z_pay_com SET com_name='Angsuran Pinjaman Koperasi Karyawan Bagian Produksi dan Pengemasan'"_s);
    pay(1, 9, 1, lines(101, 1));
    const report::Document document = reports.SlipGaji(runs({1}));
    EXPECT_GE(topOf(document, u"Gaji yang diterima:"_s), topOf(document, u"Total Potongan:"_s) + report::lineMm - 0.01);
}

TEST_F(Slip, FramesAlternateOverTheEndOfAPageAndALongOneEndsOnTheNextInItsColour) {
    for (const int employee : {1, 2, 3, 9, 10, 11})
        pay(1, employee, 1, employee == 9 ? lines(1, 60) + lines(101, 5) : lines(1, 6));
    const report::Document document = reports.SlipGaji(runs({1}));
    QStringList seen;
    for (const report::Page& page : document.pages) {
        seen << u"page"_s;
        for (const report::Mark& mark : page.marks) {
            if (mark.kind == report::Mark::Kind::Frame)
                seen << mark.fill.name();
            EXPECT_LE(mark.box.bottom(), 330.2 - 7.62 + 0.01) << mark.text.toStdString();
        }
    }
    EXPECT_EQ(seen.join(u' ').toStdString(), "page #eeeeee #fdfdfd #eeeeee page #fdfdfd page #fdfdfd #eeeeee #fdfdfd");
}

TEST_F(Slip, NoTextRunsIntoItsNeighbour) {
    database.run(uR"(
UPDATE z_pay_com SET com_kode='KODEPANJANG', com_name=repeat('W', 49);
UPDATE z_pay_com SET com_name='Tunjangan Keluarga dan Pendidikan Anak Karyawan Tetap Golongan III' WHERE com_id=1;
UPDATE func SET func_name='Kepala Bagian Pengolahan Bahan Baku dan Pengemasan Barang Jadi';
UPDATE dept SET dept_name=concat(dept_name, repeat('\\Bagian', 12));
UPDATE emp SET first_name='Raden', last_name='Ajeng Siti Nurhaliza Kusumawardhani Puspitasari binti Haji Syarifuddin'
)"_s);
    pay(1, 9, 2147483647,
        {{1, 2147483647, u"1.5 * 123.456.789"_s, 1234567.25}, {109, 999999999, u"* 99.999.999"_s, 744.5}});
    report::TypeSetter type;
    for (const report::Document& document :
         {reports.SlipGaji(runs({1})), reports.RincianPenggajian(runs({1})), *reports.RekapPenggajian(runs({1}))})
        for (const report::Mark& mark : document.pages[0].marks)
            for (const QString& line : mark.text.split(u'\n'))
                EXPECT_LE(type.width(line, mark.look), mark.box.width() + 0.01) << line.toStdString();
}
