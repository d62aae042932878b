#include "base/filter_block.h"

#include "base/dept_tree.h"
#include "toolkit/text/sql_text.h"
#include "toolkit/ui/enter_key.h"
#include "toolkit/ui/handler.h"
#include "ui_filter_block.h"

using namespace Qt::StringLiterals;

namespace base {

namespace {

/// The key of the lookup's current record where the box shows one, else 0.
qint32 keyOf(const LookupBox& box, const data::SqlQuery& query, QStringView field) {
    return box.text().isEmpty() ? 0 : query.integer32(field);
}

} // namespace

QString employeesAtWork() {
    return u"where emp_id_auto<>-1 and emp_status=0 "_s;
}

FilterBlock::FilterBlock(QWidget* parent) : QWidget(parent), m_ui(std::make_unique<Ui::FilterBlock>()) {
    m_ui->setupUi(this);
    for (const int field : {Pin, Nik, Nama})
        m_controls.insert(field, m_ui->edt_filter);
    m_controls.insert(Cabang, m_ui->lookup_cab);
    m_controls.insert(Departemen, m_ui->TCB_dept);
    m_controls.insert(Departemen, m_ui->chb_sub);
    m_controls.insert(Jabatan, m_ui->lookup_jbt);
    showControlOf(Semua);
    connectControls();
}

FilterBlock::~FilterBlock() = default;

QWidget* FilterBlock::screen() {
    QWidget* above = this;
    while (above->parentWidget() && !above->objectName().startsWith("frm_"_L1))
        above = above->parentWidget();
    return above;
}

void FilterBlock::connectControls() {
    const auto guarded = [this](void (FilterBlock::*handler)()) {
        return [this, handler] { runHandler(screen(), [this, handler] { (this->*handler)(); }); };
    };
    connect(m_ui->cmb_filter, &QComboBox::activated, this, guarded(&FilterBlock::cmb_filterCloseUp));
    connect(m_ui->lookup_cab, &LookupBox::closedUp, this, guarded(&FilterBlock::lookup_cabCloseUp));
    connect(m_ui->lookup_jbt, &LookupBox::closedUp, this, guarded(&FilterBlock::lookup_jbtCloseUp));
    connect(m_ui->TCB_dept, &TreeBox::closedUp, this, guarded(&FilterBlock::TCB_deptCloseUp));
    connect(m_ui->btn_cari, &QPushButton::clicked, this, &FilterBlock::searchWanted);
}

void FilterBlock::keyPressEvent(QKeyEvent* event) {
    if (!isEnter(*event))
        QWidget::keyPressEvent(event);
    else if (!pressFocusedButton(*this))
        Q_EMIT searchWanted();
}

void FilterBlock::attach(Session& session) {
    m_session = &session;
    sql_cab = new data::SqlQuery(session.ADOConn, u"select * from cabang"_s, this);
    sql_jbt = new data::SqlQuery(session.ADOConn, u"select * from func"_s, this);
    m_ui->lookup_cab->setSource(sql_cab, u"cab_id_auto"_s, u"cab_name"_s);
    m_ui->lookup_jbt->setSource(sql_jbt, u"func_id_auto"_s, u"func_name"_s);
}

int FilterBlock::addItem(const QString& text, QWidget* control) {
    m_ui->cmb_filter->addItem(text);
    const int index = m_ui->cmb_filter->count() - 1;
    if (control) {
        m_ui->lay_filter->insertWidget(m_ui->lay_filter->indexOf(m_ui->chb_sub), control);
        control->hide();
        m_controls.insert(index, control);
    }
    return index;
}

void FilterBlock::openLookups() {
    sql_cab->reopen();
    sql_jbt->reopen();
}

void FilterBlock::closeLookups() {
    sql_cab->close();
    sql_jbt->close();
}

void FilterBlock::fillTree() {
    FillDeptTree(*m_ui->TCB_dept, *m_session);
    m_filter_dept_path = deptPath(*m_ui->TCB_dept);
}

void FilterBlock::applySessionBranch() {
    const std::optional<qint32> branch = m_session->branch();
    if (!branch)
        return;
    m_filter_cab_id = *branch;
    m_ui->lookup_cab->setKey(m_filter_cab_id);
    m_ui->lookup_cab->setEnabled(false);
}

int FilterBlock::index() const {
    return m_ui->cmb_filter->currentIndex();
}

void FilterBlock::select(int index) {
    m_ui->cmb_filter->setCurrentIndex(index);
    cmb_filterCloseUp();
}

QString FilterBlock::text() const {
    return m_ui->edt_filter->text();
}

void FilterBlock::showControlOf(int index) {
    m_shown = index;
    for (QWidget* control : std::as_const(m_controls))
        control->hide();
    for (QWidget* control : m_controls.values(index))
        control->show();
}

void FilterBlock::cmb_filterCloseUp() {
    try {
        fillTree();
    } catch (const std::exception&) {
        m_ui->cmb_filter->setCurrentIndex(m_shown);
        throw;
    }
    for (LookupBox* box : {m_ui->lookup_cab, m_ui->lookup_jbt})
        box->clearChoice();
    m_filter_cab_id = 0;
    m_filter_func_id = 0;
    m_ui->edt_filter->clear();
    showControlOf(index());
    applySessionBranch();
}

void FilterBlock::lookup_cabCloseUp() {
    m_filter_cab_id = keyOf(*m_ui->lookup_cab, *sql_cab, u"cab_id_auto");
    Q_EMIT valueChosen();
}

void FilterBlock::lookup_jbtCloseUp() {
    m_filter_func_id = keyOf(*m_ui->lookup_jbt, *sql_jbt, u"func_id_auto");
    Q_EMIT valueChosen();
}

void FilterBlock::TCB_deptCloseUp() {
    m_filter_dept_path = deptPath(*m_ui->TCB_dept);
    Q_EMIT valueChosen();
}

QString FilterBlock::baseCondition() const {
    return employeesAtWork() + m_session->session_cab_id.furtherCondition();
}

QString FilterBlock::textCondition() const {
    if (text().isEmpty())
        return {};
    switch (index()) {
    case Pin:
        return u" and pin = "_s + quotedSqlText(text()) + u' ';
    case Nik:
        return u" and nik = "_s + quotedSqlText(text()) + u' ';
    case Nama:
        return u" and nama like "_s + quotedSqlText(text() + u'%') + u' ';
    default:
        return {};
    }
}

QString FilterBlock::deptCondition() const {
    if (m_ui->TCB_dept->text().isEmpty())
        return {};
    const QString below = m_ui->chb_sub->isChecked() ? u"%"_s : QString();
    return u" and dept_name like "_s + quotedSqlText(m_filter_dept_path + below) + u' ';
}

QString FilterBlock::conditionByKey() const {
    switch (index()) {
    case Cabang:
        if (m_ui->lookup_cab->text().isEmpty() && m_filter_cab_id == 0)
            return {};
        return u" and cab_id_auto=%1 "_s.arg(m_filter_cab_id);
    case Departemen:
        return deptCondition();
    case Jabatan:
        if (m_ui->lookup_jbt->text().isEmpty() && m_filter_func_id == 0)
            return {};
        return u" and func_id_auto=%1 "_s.arg(m_filter_func_id);
    default:
        return textCondition();
    }
}

QString FilterBlock::conditionByName() const {
    QString condition = textCondition();
    if (!m_ui->lookup_cab->text().isEmpty() && m_filter_cab_id != 0)
        condition += u" and cab_name="_s + quotedSqlText(m_ui->lookup_cab->text()) + u' ';
    // The name alone would let branches through that are called alike.
    condition += m_session->session_cab_id.furtherCondition();
    condition += deptCondition();
    if (!m_ui->lookup_jbt->text().isEmpty() && m_filter_func_id != 0)
        condition += u" and func_name="_s + quotedSqlText(m_ui->lookup_jbt->text()) + u' ';
    return condition;
}

} // namespace base
