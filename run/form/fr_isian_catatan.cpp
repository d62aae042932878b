// What the run form tells beside its results: a total that the lines do not add up to, and who got no line.

#include "run/form/fr_isian_hitung_gaji.h"
#include "run/form/left_out_list.h"
#include "toolkit/text/number_text.h"
#include "toolkit/ui/notice_bar.h"
#include "ui_fr_isian_hitung_gaji.h"

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

void Tfrm_isian_hitung_gaji::show_total() {
    const double stored = m_copy.cds_m.real(u"tot_process");
    m_ui->lbl_total->setText(groupedInteger(stored));
    double sum = 0;
    const int field = m_copy.cds_d.fieldIndex(u"tot_payroll");
    for (int line = 0; line < m_copy.cds_d.rowCount(); ++line)
        sum += data::realOf(m_copy.cds_d.valueAt(line, field));
    const QString differing = run::differingSum(txt_jumlah_benar.text(), stored, sum);
    m_ui->lbl_jumlah_benar->setText(differing);
    m_ui->lbl_jumlah_benar->setVisible(!differing.isEmpty());
}

void Tfrm_isian_hitung_gaji::show_left_out(std::vector<run::LeftOut> people) {
    if (people.empty())
        return;
    std::array<int, run::whyLeftOutCount> counts{};
    for (const run::LeftOut& person : people)
        ++counts[std::size_t(person.why)];
    QStringList reasons;
    for (std::size_t why = 0; why < counts.size(); ++why)
        if (counts[why] > 0)
            reasons << m_whyLeftOut[why].text() + u": %1"_s.arg(counts[why]);
    const QString text = txt_tanpa_baris.text() + u": %1 (%2)"_s.arg(people.size()).arg(reasons.join(u", "_s));
    NoticeBar::of(*this).tell({text, txt_siapa.text(), [this, people = std::move(people)] { list_left_out(people); }});
}

void Tfrm_isian_hitung_gaji::list_left_out(const std::vector<run::LeftOut>& people) {
    QList<QStringList> rows;
    for (const run::LeftOut& person : people) {
        QString sebab = m_whyLeftOut[std::size_t(person.why)].text();
        if (!person.fault.isEmpty())
            sebab += u": "_s + person.fault;
        rows << QStringList{person.pin, person.nik, person.nama, sebab};
    }
    Tfrm_daftar(m_services, leftOutList(std::move(rows)), this).exec();
}
