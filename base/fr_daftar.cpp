#include "base/fr_daftar.h"

#include "toolkit/ui/handler.h"
#include "ui_fr_daftar.h"

#include <QClipboard>
#include <QGuiApplication>

#include <utility>

static std::vector<data::Field> fieldsOf(const base::TextList& list) {
    std::vector<data::Field> fields;
    for (const base::TextList::Column& column : list.columns)
        fields.push_back({.name = column.field});
    return fields;
}

Tfrm_daftar::Tfrm_daftar(base::Services& services, base::TextList list, QWidget* parent) :
    Screen(services, parent), m_ui(std::make_unique<Ui::frm_daftar>()), m_list(std::move(list)),
    vir_daftar(fieldsOf(m_list)) {
    m_ui->setupUi(this);
    setObjectName(m_list.form);
    setWindowTitle(m_list.caption);
    std::vector<ColumnPlan> columns;
    for (const auto& [field, caption] : m_list.columns)
        columns.push_back({field, caption});
    m_ui->dbg_daftar->setColumns(columns);
    m_ui->dbg_daftar->setDataSet(&vir_daftar);
    onEvent(m_ui->btn_salin, &QPushButton::clicked, this, &Tfrm_daftar::btn_salinClick);
    connect(m_ui->btn_tutup, &QPushButton::clicked, this, &QDialog::close);
    m_services.language.ApplyLanguage(*this);
}

Tfrm_daftar::~Tfrm_daftar() = default;

void Tfrm_daftar::FormActivate() {
    vir_daftar.open();
    {
        const data::ViewsOff quiet(vir_daftar);
        for (const QStringList& row : m_list.rows) {
            vir_daftar.append();
            for (std::size_t i = 0; i < m_list.columns.size(); ++i)
                vir_daftar.setValue(m_list.columns[i].field, row[qsizetype(i)]);
            vir_daftar.post();
        }
        vir_daftar.first();
    }
    FitGridColumns(*m_ui->dbg_daftar);
    m_ui->btn_salin->setFocus();
}

void Tfrm_daftar::btn_salinClick() {
    QStringList captions;
    for (const GridColumn* column : m_ui->dbg_daftar->columns())
        captions << column->caption();
    QStringList lines{captions.join(u'\t')};
    for (QStringList row : m_list.rows) {
        for (QString& text : row)
            text = text.simplified();
        lines << row.join(u'\t');
    }
    QGuiApplication::clipboard()->setText(lines.join(u'\n'));
}
