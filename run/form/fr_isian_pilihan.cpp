// The run form's pick lists: groups, components, employees, loans.

#include "run/form/fr_isian_hitung_gaji.h"

#include "base/tick_list.h"
#include "run/reading/statements.h"
#include "toolkit/data/clear_data_set.h"
#include "toolkit/fault/drop_fault.h"
#include "ui_fr_isian_hitung_gaji.h"

#include <QResizeEvent>

using namespace Qt::StringLiterals;

namespace {

constexpr int pnlEmpTop = 296;
constexpr int pnlEmpBottomMargin = 12;

} // namespace

void Tfrm_isian_hitung_gaji::tick_groups(TickWish wish) {
    base::setTicks(cds_grp, wish, [this](const QString& text) { dbg_grppilihToggleClick(text); });
    FitGridColumns(*m_ui->dbg_kom);
}

void Tfrm_isian_hitung_gaji::tick_components(TickWish wish) {
    base::setTicks(cds_komp, wish, [this](const QString& text) { dbg_kompilihToggleClick(text); });
}

void Tfrm_isian_hitung_gaji::dbg_grppilihToggleClick(const QString& text) {
    const QVariant grp_id = cds_grp.value(u"grp_id");
    const bool listed = vir_tb.locate({{u"grp_id", grp_id}});
    if (text == "-1"_L1 && !listed) {
        vir_tb.append();
        vir_tb.setValue(u"grp_id", grp_id);
        vir_tb.post();
    } else if (text != "-1"_L1 && listed) {
        vir_tb.remove();
    }
    const data::ViewsOff off(cds_komp);
    for (cds_komp.last(); !cds_komp.isEmpty();)
        cds_komp.remove();
    for (vir_tb.first(); !vir_tb.isEof(); vir_tb.next())
        fault::dropFault("komponen sebuah group", [this] { isi_komponen_grup(vir_tb.integer32(u"grp_id")); });
    cds_komp.first();
    FitGridColumns(*m_ui->dbg_kom);
}

void Tfrm_isian_hitung_gaji::isi_komponen_grup(int grp_id) {
    data::SqlQuery& sql = m_services.session.sql_temp;
    sql.openSql(u"select grp_com.*, com.com_kode, com.com_name, com.no_urut, "
                "if(com.type=0, 'Penerimaan', 'Potongan') as type from z_pay_grp_com as grp_com "
                "left join z_pay_grp as grp on grp_com.grp_id=grp.grp_id "
                "left join z_pay_com as com on grp_com.com_id=com.com_id where grp_com.grp_id=%1 "
                "order by com.type, com.no_urut "_s.arg(grp_id));
    for (; !sql.isEof(); sql.next()) {
        if (cds_komp.rowOf({{u"com_id", sql.value(u"com_id")}}) >= 0)
            continue;
        cds_komp.append();
        cds_komp.setValue(u"pilih", 0);
        for (const QStringView field : {u"com_id", u"com_kode", u"com_name", u"no_urut"})
            cds_komp.setValue(field, sql.value(field));
        cds_komp.post();
    }
    ClearDataSet(vir_tb2);
}

void Tfrm_isian_hitung_gaji::dbg_kompilihToggleClick(const QString& text) {
    const QVariant com_id = cds_komp.value(u"com_id");
    const bool listed = vir_tb2.locate({{u"com_id", com_id}});
    if (text != "-1"_L1) {
        if (listed)
            vir_tb2.remove();
        return;
    }
    if (listed)
        return;
    vir_tb2.append();
    vir_tb2.setValue(u"com_id", com_id);
    // The list does not carry the type, so the working order is the number alone.
    vir_tb2.setValue(u"type", 0);
    vir_tb2.setValue(u"no_urut", cds_komp.value(u"no_urut"));
    vir_tb2.post();
}

void Tfrm_isian_hitung_gaji::chb_empClick() {
    m_ui->btn_emp->setEnabled(m_ui->chb_emp->isChecked());
    if (m_ui->chb_emp->isChecked())
        pnl_empPop();
    else
        m_ui->pnl_emp->hide();
    isi_daftar_karyawan();
}

void Tfrm_isian_hitung_gaji::btn_empClick() {
    pnl_empPop();
}

void Tfrm_isian_hitung_gaji::pnl_empPop() {
    place_panels();
    m_ui->pnl_emp->show();
    m_ui->pnl_emp->raise();
    m_ui->clb_emp->setFocus();
}

void Tfrm_isian_hitung_gaji::pnl_empExit(QWidget* focus) {
    if (focus && focus != m_ui->pnl_emp && !m_ui->pnl_emp->isAncestorOf(focus))
        m_ui->pnl_emp->hide();
}

void Tfrm_isian_hitung_gaji::resizeEvent(QResizeEvent* event) {
    Screen::resizeEvent(event);
    place_panels();
}

void Tfrm_isian_hitung_gaji::reject() {
    if (m_ui->pnl_emp->isVisible())
        m_ui->chb_emp->setFocus();
    else
        Screen::reject();
}

void Tfrm_isian_hitung_gaji::place_panels() {
    const int left = m_ui->dbg_d->geometry().left();
    m_ui->pnl_emp->setGeometry(left, pnlEmpTop, std::max(width() / 3, m_ui->pnl_emp->sizeHint().width()),
                               height() - pnlEmpTop - pnlEmpBottomMargin);
    m_ui->pnl_proses->adjustSize();
    m_ui->pnl_proses->move(rect().center() - m_ui->pnl_proses->rect().center());
}

void Tfrm_isian_hitung_gaji::isi_daftar_karyawan() {
    std::vector<CheckList::Entry> entries;
    ClearDataSet(vir_emp);
    data::SqlQuery& sql = m_services.session.sql_cek;
    for (vir_tb.first(); !vir_tb.isEof(); vir_tb.next()) {
        const int grp_id = vir_tb.integer32(u"grp_id");
        for (sql.openSql(run::membersStatement(grp_id, base::Branch::all())); !sql.isEof(); sql.next()) {
            entries.push_back({u"[%1] %2"_s.arg(sql.text(u"pin"), sql.text(u"nama")), sql.integer32(u"emp_id_auto")});
            if (vir_emp.rowOf({{u"emp_id_auto", sql.value(u"emp_id_auto")}}) >= 0)
                continue;
            vir_emp.append();
            for (const QStringView field : {u"emp_id_auto", u"pin", u"nik", u"nama"})
                vir_emp.setValue(field, sql.value(field));
            vir_emp.setValue(u"grp_id", grp_id);
            vir_emp.post();
        }
    }
    m_ui->clb_emp->fill(entries);
}

void Tfrm_isian_hitung_gaji::clb_empClickCheck(int ticked) {
    m_ui->lbl_jml->setText(QString::number(ticked));
}

void Tfrm_isian_hitung_gaji::chb_kreditClick() {
    const bool loans = m_ui->chb_kredit->isChecked();
    for (QWidget* control :
         std::initializer_list<QWidget*>{m_ui->lbl_berdasar, m_ui->cmb_kredit, m_ui->lbl_bulan, m_ui->dtp_bulan})
        control->setVisible(loans);
    if (loans)
        cmb_kreditCloseUp();
}

void Tfrm_isian_hitung_gaji::cmb_kreditCloseUp() {
    const bool month = m_ui->cmb_kredit->currentIndex() != 0;
    m_ui->lbl_bulan->setVisible(month);
    m_ui->dtp_bulan->setVisible(month);
}

run::EmployeeChoice Tfrm_isian_hitung_gaji::chosen_employees() const {
    run::EmployeeChoice choice;
    for (int entry = 0; entry < m_ui->clb_emp->count(); ++entry)
        choice.clb_emp_id.push_back({m_ui->clb_emp->keyOf(entry), m_ui->clb_emp->isTicked(entry)});
    const auto text = [this](int row, QStringView field) {
        return data::textOf(vir_emp.valueAt(row, vir_emp.fieldIndex(field)));
    };
    for (int row = 0; row < vir_emp.rowCount(); ++row)
        choice.vir_emp.push_back(
            {{text(row, u"emp_id_auto").toInt(), text(row, u"pin"), text(row, u"nik"), text(row, u"nama")},
             text(row, u"grp_id").toInt()});
    return choice;
}

run::SessionSelections Tfrm_isian_hitung_gaji::selections() const {
    run::SessionSelections chosen;
    chosen.period = {m_ui->dbtp_tgl_aw->date(), m_ui->dbtp_tgl_akh->date()};
    const auto number = [](const data::DataSet& set, int row, QStringView field) {
        return data::integer32Of(set.valueAt(row, set.fieldIndex(field)));
    };
    for (int row = 0; row < vir_tb.rowCount(); ++row)
        chosen.groups.push_back(number(vir_tb, row, u"grp_id"));
    for (int row = 0; row < vir_tb2.rowCount(); ++row)
        chosen.components.push_back(
            {number(vir_tb2, row, u"com_id"), number(vir_tb2, row, u"type"), number(vir_tb2, row, u"no_urut")});
    if (m_ui->chb_emp->isChecked())
        chosen.employees = chosen_employees();
    if (m_ui->chb_kredit->isChecked())
        chosen.loans = m_ui->cmb_kredit->currentIndex() == 0 ? run::LoanTest::Period : run::LoanTest::Month;
    chosen.loanMonth = m_ui->dtp_bulan->date();
    chosen.session_cab_id = m_services.session.session_cab_id;
    return chosen;
}
