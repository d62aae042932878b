#pragma once

#include "base/screen.h"
#include "toolkit/data/mem_table.h"

#include <memory>
#include <vector>

namespace Ui {
class frm_daftar;
}

namespace base {

/// A list of texts under a form name and captions of its own.
struct TextList {
    struct Column {
        QString field;
        QString caption;
    };

    QString form;
    QString caption;
    std::vector<Column> columns;
    QList<QStringList> rows; ///< as many texts as there are columns
};

} // namespace base

/// Shows a list of texts to look at and to copy into a sheet.
class Tfrm_daftar final : public Screen {
    Q_OBJECT

public:
    Tfrm_daftar(base::Services& services, base::TextList list, QWidget* parent);
    ~Tfrm_daftar() override;

protected:
    void FormActivate() override;

private:
    /// Tab-separated under the captions, one row a line.
    void btn_salinClick();

    std::unique_ptr<Ui::frm_daftar> m_ui;
    const base::TextList m_list;
    data::MemTable vir_daftar;
};
