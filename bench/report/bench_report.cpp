// Times the payroll reports of a large run, from the statements to the first page on the screen and to the file, and
// prints one line per figure: "name: value unit". With a folder as argument it leaves the three papers there.
#include "register/reports/captions.h"
#include "register/reports/payroll_reports.h"
#include "register/reports/statements.h"
#include "tests/support/test_database.h"
#include "toolkit/report/fr_preview.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTextStream>

#include <chrono>

using namespace Qt::StringLiterals;

namespace {

constexpr int employees = 5000;

/// A run with eight earnings and four deductions for everybody; the amounts differ from line to line.
const QString largeRun = uR"(
INSERT INTO dept VALUES (1, 'PT Mandala Citra Pangan', 'PT Mandala Citra Pangan'),
  (2, 'PT Mandala Citra Pangan\\Produksi\\Pengemasan', 'Pengemasan');
INSERT INTO func VALUES (1, 'Operator Produksi');
INSERT INTO cabang VALUES (1, 'Kantor Pusat Bandung');
INSERT INTO emp (emp_id_auto, pin, nik, first_name, last_name, cab_id_auto, dept_id_auto, func_id_auto, emp_status)
  SELECT seq, seq, 202500000 + seq, concat('Karyawan', seq), 'Wijayakusuma', 1, 2, 1, 0 FROM seq_1_to_%1;
INSERT INTO z_pay_com (com_id, com_kode, com_name, type, no_urut, cara_bayar)
  SELECT seq, concat('K', seq), elt(1 + seq % 3, 'Tunjangan Jabatan', 'Potongan', 'Angsuran Pinjaman Koperasi Karyawan'),
    seq > 8, seq * 5, seq % 2 FROM seq_1_to_12;
INSERT INTO z_pay_grp_emp (grp_id, emp_id_auto) SELECT 1, seq FROM seq_1_to_%1;
INSERT INTO z_pay_grp_com (com_id, grp_id, no_urut_ref, jenis) SELECT seq, 1, seq, seq % 4 = 3 FROM seq_1_to_12;
INSERT INTO z_pay_process_d SELECT 1, seq, seq, 4000000 + seq FROM seq_1_to_%1;
INSERT INTO z_pay_process_sd SELECT 1, e.seq, (e.seq - 1) * 12 + c.seq, e.seq, c.seq, 125000 + e.seq * c.seq,
    concat('1.5 * ', c.seq, '.000'), '', 20 + c.seq / 4 FROM seq_1_to_%1 e, seq_1_to_12 c;
)"_s.arg(employees);

class Stopwatch {
public:
    /// Milliseconds since the start or the last lap.
    double lap() {
        const auto before = std::exchange(m_start, std::chrono::steady_clock::now());
        return std::chrono::duration<double, std::milli>(m_start - before).count();
    }

private:
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
};

void tell(const QString& name, double value, const QString& unit = u"ms"_s) {
    QTextStream(stdout) << name << ": " << QString::number(value, 'f', 0) << ' ' << unit << '\n';
}

void bench(const QString& name, const QString& folder, const std::function<report::Document()>& make) {
    Stopwatch watch;
    report::Document document = make();
    const double read = watch.lap();
    tell(name + u"_pages"_s, double(document.pages.size()), u"pages"_s);
    tell(name + u"_read_and_laid_out"_s, read);
    Tfrm_preview preview(std::move(document), nullptr);
    preview.resize(1280, 800);
    preview.show();
    const QPixmap first = preview.grab();
    tell(name + u"_first_page_shown"_s, read + watch.lap());
    report::savePdf(preview.document(), QDir(folder).filePath(name + u".pdf"_s));
    tell(name + u"_all_pages_as_pdf"_s, watch.lap());
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const QTemporaryDir scratch;
    const QString folder = argc > 1 ? application.arguments().at(1) : scratch.path();
    TestDatabase database;
    database.run(largeRun);
    base::Session session(base::systemClock());
    session.ADOConn.configure(database.mainSettings());
    session.login_id = u"budi"_s;
    const report::Captions captions = payroll::defaultCaptions();
    payroll::PayrollReports reports(session, captions);
    const payroll::Request request{
        .filter = payroll::processFilter({1}), .dtp_tgl_aw = {2026, 6, 1}, .dtp_tgl_akh = {2026, 6, 30}};
    bench(u"recap"_s, folder, [&] { return *reports.RekapPenggajian(request); });
    bench(u"detail"_s, folder, [&] { return reports.RincianPenggajian(request); });
    bench(u"slips"_s, folder, [&] { return reports.SlipGaji(request); });
    return 0;
}
