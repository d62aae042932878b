// The pay slip read as text.
#include "tests/report/paper.h"
#include "tests/report/payroll_fixture.h"
#include "tests/report/tool.h"
#include "toolkit/report/output.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

// Of an employee with two earnings and a loan whose name takes two lines.
constexpr char wholeSlip[] = R"--(page 1 of 1 215.9x330.2 mm
slip 7.6 7.6 "" box fill #eeeeee
head 9.6 9.6 "Nama Perusahaan"
head 36.6 9.6 " : "
head 39.6 9.6 "PT Contoh"
head 110.0 9.6 "NIK"
head 137.0 9.6 " : "
head 140.0 9.6 "N1"
head 9.6 14.4 "Tgl. Periode"
head 36.6 14.4 " : "
head 39.6 14.4 "01/05/2026"
head 54.0 14.4 " s/d "
head 59.4 14.4 "31/05/2026"
head 110.0 14.4 "Nama Karyawan"
head 137.0 14.4 " : "
head 140.0 14.4 "Ani Lestari" bold
head 9.6 19.3 "Departemen"
head 36.6 19.3 " : "
head 39.6 19.3 "PT Contoh\\Produksi"
head 110.0 19.3 "Jabatan"
head 137.0 19.3 " : "
head 140.0 19.3 "Operator"
earning 9.6 25.3 "Penerimaan ( + )" bold
deduction 110.0 25.3 "Potongan ( - )" bold
earning 9.6 30.4 "K1"
earning 20.6 30.4 "Gaji Pokok"
earning 48.6 30.4 "1"
earning 66.2 30.4 "* 4.000.000"
earning 83.2 30.4 "="
earning 85.8 30.4 "4.000.000"
deduction 110.0 30.4 "K9"
deduction 121.0 30.4 "Angsuran Pinjaman\nKoperasi"
deduction 149.0 30.4 "2"
deduction 166.6 30.4 " x Angsuran"
deduction 183.6 30.4 "="
deduction 186.2 30.4 "300.000"
earning 9.6 35.2 "K2"
earning 20.6 35.2 "Lembur"
earning 48.6 35.2 "2,50"
earning 66.2 35.2 "1.5 * 20.000"
earning 83.2 35.2 "="
earning 85.8 35.2 "100.000"
earning 9.6 40.0 "Total Penerimaan:" bold
earning 85.8 40.0 "4.100.000" bold
deduction 110.0 40.0 "Total Potongan:" bold
deduction 186.2 40.0 "300.000" bold
foot 9.6 45.8 "Gaji yang diterima:" bold
foot 39.6 45.8 "3.800.000" bold
foot 110.0 45.8 "Tgl. Cetak"
foot 137.0 45.8 " : "
foot 140.0 45.8 "05/06/2026 14:03:09"
foot 9.6 50.9 "Nama Perusahaan"
foot 36.6 50.9 " : "
foot 39.6 50.9 "PT Contoh"
foot 110.0 50.9 "Gaji yang diterima:" bold
foot 140.0 50.9 "3.800.000" bold
foot 9.6 56.0 "Tgl. Periode"
foot 36.6 56.0 " : "
foot 39.6 56.0 "01/05/2026"
foot 54.0 56.0 " s/d "
foot 59.4 56.0 "31/05/2026"
foot 110.0 56.0 "Diserahkan oleh,"
foot 161.3 56.0 "Diterima oleh,"
foot 9.6 61.1 "Departemen"
foot 36.6 61.1 " : "
foot 39.6 61.1 "PT Contoh\\Produksi"
foot 9.6 66.2 "NIK"
foot 36.6 66.2 " : "
foot 39.6 66.2 "N1"
foot 9.6 71.3 "Nama Karyawan"
foot 36.6 71.3 " : "
foot 39.6 71.3 "Ani Lestari"
foot 110.0 71.3 "budi"
foot 161.3 71.3 "Ani Lestari"
foot 9.6 76.4 "Jabatan"
foot 36.6 76.4 " : "
foot 39.6 76.4 "Operator"
foot 110.0 76.4 "Tgl. Cetak"
foot 137.0 76.4 " : "
foot 140.0 76.4 "05/06/2026 14:03:09")--";

class Slip : public PayrollPapers {
protected:
    /// `count` components from com_id `first` on.
    void addComponents(int first, int count, int type) {
        for (int com_id = first; com_id < first + count; ++com_id)
            add({.com_id = com_id, .com_name = u"Komponen %1"_s.arg(com_id), .type = type});
    }
    static QList<Line> lines(int first, int count) {
        QList<Line> result;
        for (int com_id = first; com_id < first + count; ++com_id)
            result << Line{com_id, 1000.0 * com_id};
        return result;
    }
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

TEST_F(Slip, IsAFrameWithHeadTwoListsAndAFoot) {
    add({.com_id = 1, .com_name = u"Gaji Pokok"_s});
    add({.com_id = 2, .com_name = u"Lembur"_s});
    add({.com_id = 9, .com_name = u"Angsuran Pinjaman Koperasi"_s, .type = 1});
    employee(1, u"Ani Lestari"_s);
    pay(1, 1, 3800000,
        {{1, 4000000, u"* 4.000.000"_s}, {2, 100000, u"1.5 * 20.000"_s, 2.5}, {9, 300000, u" x Angsuran"_s, 2}});
    EXPECT_EQ(textLines(reports.SlipGaji(runs({1}))).join(u'\n').toStdString(), wholeSlip);
}

TEST_F(Slip, CountsALineThatIsTheSameInTwoRunsOnceButPaysBoth) {
    add({.com_id = 1, .com_name = u"Gaji Pokok"_s});
    add({.com_id = 2, .com_name = u"Lembur"_s});
    employee(1, u"Ani"_s);
    pay(1, 1, 4100000, {{1, 4000000, u"* 4.000.000"_s}, {2, 100000, u"* 20.000"_s, 5}});
    pay(2, 1, 4040000, {{1, 4000000, u"* 4.000.000"_s}, {2, 40000, u"* 20.000"_s, 2}});
    EXPECT_EQ(slips({1, 2}, u"earning"_s), "Penerimaan ( + )\nK1 | Gaji Pokok | 1 | * 4.000.000 | = | 4.000.000\n"
                                           "K2 | Lembur | 7 | * 20.000 | = | 140.000\nTotal Penerimaan: | 4.140.000");
    EXPECT_EQ(slips({1, 2}, u"foot"_s).substr(0, 31), "Gaji yang diterima: | 8.140.000");
}

TEST_F(Slip, UnderlinesTransfersAndDeductionsAfterTheLastEarning) {
    add({.com_id = 1, .com_name = u"Tunai"_s});
    add({.com_id = 2, .com_name = u"Transfer"_s, .cara_bayar = Transfer});
    add({.com_id = 3, .com_name = u"Juga tunai"_s});
    add({.com_id = 8, .com_name = u"Potongan tunai"_s, .type = 1});
    add({.com_id = 9, .com_name = u"Potongan transfer"_s, .type = 1, .cara_bayar = Transfer});
    for (int emp = 1; emp <= 3; ++emp)
        employee(emp, u"Ani"_s);
    pay(1, 1, 1, {{1, 1}, {2, 2}, {8, 3}, {9, 4}});
    pay(1, 2, 1, {{1, 1}, {2, 2}, {3, 3}, {8, 4}, {9, 5}});
    pay(1, 3, 1, {{8, 4}, {9, 5}});
    const report::Document document = reports.SlipGaji(runs({1}));
    QStringList codes;
    for (const report::Page& page : document.pages)
        for (const report::Mark& mark : page.marks)
            if (mark.text.startsWith(u'K') && mark.text.size() == 2)
                codes << (mark.look.underline ? u'_' + mark.text : mark.text);
    EXPECT_EQ(codes.join(u' '), u"K1 _K2 _K8 _K9 K1 _K2 K3 K8 K9 K8 K9"_s);
}

TEST_F(Slip, LeavesFactorAndUnitOfTieredAndReplacingLinesBlank) {
    addComponents(1, 4, 0);
    for (int jenis = 0; jenis <= 2; ++jenis)
        rule(jenis + 1, jenis);
    employee(1, u"Ani"_s);
    pay(1, 1, 1, {{1, 10, u"* 4"_s, 2.5}, {2, 20, u"* 5"_s, 2}, {3, 30, u"* 6"_s, 2}, {4, 40, u"* 7"_s, 2.004}});
    EXPECT_EQ(slips({1}, u"earning"_s), "Penerimaan ( + )\nK1 | Komponen 1 | 2,50 | * 4 | = | 10\n"
                                        "K2 | Komponen 2 | = | 20\nK3 | Komponen 3 | = | 30\n"
                                        "K4 | Komponen 4 | 2 | * 7 | = | 40\nTotal Penerimaan: | 100");
    database.run(u"DELETE FROM z_pay_grp_emp"_s);
    EXPECT_EQ(slips({1}, u"earning"_s), "Penerimaan ( + )\nK1 | Komponen 1 | 2,50 | * 4 | = | 10\n"
                                        "K2 | Komponen 2 | 2 | * 5 | = | 20\nK3 | Komponen 3 | 2 | * 6 | = | 30\n"
                                        "K4 | Komponen 4 | 2 | * 7 | = | 40\nTotal Penerimaan: | 100")
        << "who has left the group has no rule any more";
}

TEST_F(Slip, ItsFootStandsBelowTheLongerList) {
    struct Case {
        int earnings, deductions;
        double inches; ///< from the top of the earnings summary
    };
    addComponents(1, 20, 0);
    addComponents(101, 20, 1);
    int run = 0;
    for (const Case& each : {Case{3, 3, 0.2292}, Case{3, 4, 0.4192}, Case{3, 10, 1.5592}, Case{10, 3, 0.2292}}) {
        pay(++run, 1, 1, lines(1, each.earnings) + lines(101, each.deductions));
        const report::Document document = reports.SlipGaji(runs({run}));
        EXPECT_NEAR(topOf(document, u"Gaji yang diterima:"_s) - topOf(document, u"Total Penerimaan:"_s),
                    each.inches * 25.4, 0.01)
            << each.earnings << " " << each.deductions;
    }
}

TEST_F(Slip, LongNamesOfDeductionsPushTheFootFurther) {
    addComponents(1, 2, 0);
    add({.com_id = 9, .com_name = u"Angsuran Pinjaman Koperasi Karyawan Bagian Produksi dan Pengemasan"_s, .type = 1});
    pay(1, 1, 1, lines(1, 2) + lines(9, 1));
    const report::Document document = reports.SlipGaji(runs({1}));
    EXPECT_GE(topOf(document, u"Gaji yang diterima:"_s), topOf(document, u"Total Potongan:"_s) + report::lineMm - 0.01);
}

TEST_F(Slip, FramesAlternateOverTheEndOfAPage) {
    addComponents(1, 6, 0);
    for (int emp = 1; emp <= 5; ++emp)
        pay(1, emp, 1, lines(1, 6));
    EXPECT_EQ(paper(reports.SlipGaji(runs({1}))).find("page 4"), std::string::npos);
    const report::Document document = reports.SlipGaji(runs({1}));
    QStringList fills;
    for (const report::Page& page : document.pages) {
        fills << u"page"_s;
        for (const report::Mark& mark : page.marks)
            if (mark.kind == report::Mark::Kind::Frame)
                fills << mark.fill.name();
    }
    EXPECT_EQ(fills.join(u' '), u"page #eeeeee #fdfdfd #eeeeee page #fdfdfd #eeeeee"_s);
}

TEST_F(Slip, SixtyComponentsEndOnTheNextPageInTheSameColour) {
    addComponents(1, 60, 0);
    addComponents(101, 5, 1);
    employee(1, u"Ani"_s);
    employee(2, u"Budi"_s);
    pay(1, 1, 1, lines(1, 2));
    pay(1, 2, 1, lines(1, 60) + lines(101, 5));
    const report::Document document = reports.SlipGaji(runs({1}));
    ASSERT_EQ(document.pages.size(), 3u);
    QStringList seen;
    for (const report::Page& page : document.pages)
        seen << u"%1 %2"_s.arg(page.marks.front().fill.name())
                    .arg(std::ranges::count(page.marks, u"="_s, &report::Mark::text));
    EXPECT_EQ(seen.join(u", "_s).toStdString(), "#eeeeee 2, #fdfdfd 65, #fdfdfd 0");
    for (const report::Page& page : document.pages)
        for (const report::Mark& mark : page.marks)
            EXPECT_LE(mark.box.bottom(), 330.2 - 7.62 + 0.01) << mark.text.toStdString();
}

TEST_F(Slip, WithoutEmployeesThereIsAnEmptyPage) {
    EXPECT_EQ(paper(reports.SlipGaji(runs({1}))), "page 1 of 1");
}

TEST_F(Slip, NoTextRunsIntoItsNeighbour) {
    add({.com_id = 1, .com_name = u"Tunjangan Keluarga dan Pendidikan Anak Karyawan Tetap Golongan III"_s});
    add({.com_id = 9, .com_name = u"Wwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwww"_s, .type = 1});
    database.run(u"UPDATE z_pay_com SET com_kode='KODEPANJANG'"_s);
    database.run(u"UPDATE func SET func_name='Kepala Bagian Pengolahan Bahan Baku dan Pengemasan Barang Jadi'"_s);
    database.run(u"UPDATE dept SET dept_name=concat(dept_name, repeat('\\\\Bagian', 12))"_s);
    employee(1, u"Raden Ajeng Siti Nurhaliza Kusumawardhani Puspitasari binti Almarhum Haji Muhammad Syarifuddin"_s);
    pay(1, 1, 2147483647,
        {{1, 2147483647, u"1.5 * 123.456.789"_s, 1234567.25}, {9, 999999999, u"* 99.999.999"_s, 744.5}});
    report::TypeSetter type;
    for (const report::Document& document :
         {reports.SlipGaji(runs({1})), reports.RincianPenggajian(runs({1})), *reports.RekapPenggajian(runs({1}))})
        for (const report::Mark& mark : document.pages[0].marks)
            for (const QString& line : mark.text.split(u'\n'))
                EXPECT_LE(type.width(line, mark.look), mark.box.width() + 0.01) << line.toStdString();
}

TEST_F(Slip, ReadsTheSameInTheFile) {
    add({.com_id = 1, .com_name = u"Gaji Pokok"_s});
    employee(1, u"Nur'aini"_s);
    pay(1, 1, 4000000, {{1, 4000000, u"* 4.000.000"_s}});
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"slip.pdf"_s);
    savePdf(reports.SlipGaji(runs({1})), path);
    QStringList read;
    for (const QString& line : outputOf(u"pdftotext"_s, {u"-layout"_s, path, u"-"_s}).split(u'\n', Qt::SkipEmptyParts))
        read << line.simplified();
    EXPECT_EQ(read.join(u'\n').trimmed().toStdString(), R"--(Nama Perusahaan : PT Contoh NIK : N1
Tgl. Periode : 01/05/2026 s/d 31/05/2026 Nama Karyawan : Nur'aini
Departemen : PT Contoh\Produksi Jabatan : Operator
Penerimaan ( + ) Potongan ( - )
K1 Gaji Pokok 1 * 4.000.000 = 4.000.000 Total Potongan: 0
Total Penerimaan: 4.000.000
Gaji yang diterima: 4.000.000 Tgl. Cetak : 05/06/2026 14:03:09
Nama Perusahaan : PT Contoh Gaji yang diterima: 4.000.000
Tgl. Periode : 01/05/2026 s/d 31/05/2026 Diserahkan oleh, Diterima oleh,
Departemen : PT Contoh\Produksi
NIK : N1
Nama Karyawan : Nur'aini budi Nur'aini
Jabatan : Operator Tgl. Cetak : 05/06/2026 14:03:09)--");
}
