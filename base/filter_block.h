#pragma once

#include "base/session.h"

#include <QMap>
#include <QWidget>

#include <memory>

namespace Ui {
class FilterBlock;
}

namespace base {

/// Where every list of employees is filtered: a chooser of the field, and beside it the one control that fits it.
/// Each screen has a block of its own, which remembers nothing of the others. The controls carry the same names on all
/// screens.
class FilterBlock final : public QWidget {
    Q_OBJECT

public:
    /// Places of the fields in cmb_filter; a screen may add more behind them.
    enum Item { Semua, Pin, Nik, Nama, Cabang, Departemen, Jabatan };

    explicit FilterBlock(QWidget* parent = nullptr);
    ~FilterBlock() override;

    /// Said once, before anything else. The session outlives the block.
    void attach(Session& session);
    /// Adds a field behind the others with the control that shows for it, which the block takes; gives its place.
    int addItem(const QString& text, QWidget* control);

    // The steps of a first activation; screens call them in the order that theirs needs.
    void openLookups();
    void closeLookups();
    void fillTree();
    /// Presets and disables the branch where the session is limited.
    void applySessionBranch();

    [[nodiscard]] int index() const;
    /// As if the user chose that field.
    void select(int index);
    [[nodiscard]] QString text() const;
    [[nodiscard]] const QString& filter_dept_path() const { return m_filter_dept_path; }
    [[nodiscard]] qint32 filter_cab_id() const { return m_filter_cab_id; }
    [[nodiscard]] qint32 filter_func_id() const { return m_filter_func_id; }

    // Conditions, each ending in a blank.
    /// Employees at work, of the session's branch where it is limited to one.
    [[nodiscard]] QString baseCondition() const;
    /// Of the chosen field alone, on keys; begins with " and".
    [[nodiscard]] QString conditionByKey() const;
    /// Of the chosen text field, and of branch, department and function by their names whatever field is chosen. In a
    /// limited session it never lets more through than the limit does.
    [[nodiscard]] QString conditionByName() const;

Q_SIGNALS:
    /// The user has chosen a branch, a department or a function.
    void valueChosen();
    /// The user asks for the search.
    void searchWanted();

protected:
    /// Enter asks for the search from every field of the block.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void cmb_filterCloseUp();
    void lookup_cabCloseUp();
    void lookup_jbtCloseUp();
    void TCB_deptCloseUp();

    /// The screen that carries the block; faults are shown as its own.
    [[nodiscard]] QWidget* screen();
    void connectControls();
    void showControlOf(int index);
    [[nodiscard]] QString textCondition() const;
    [[nodiscard]] QString deptCondition() const;

    std::unique_ptr<Ui::FilterBlock> m_ui;
    Session* m_session = nullptr;
    data::SqlQuery* sql_cab = nullptr;
    data::SqlQuery* sql_jbt = nullptr;
    QMultiMap<int, QWidget*> m_controls; ///< by the place of their field
    int m_shown = Semua;                 ///< the field whose control shows
    qint32 m_filter_cab_id = 0;          ///< branch chosen in lookup_cab, 0 for none
    qint32 m_filter_func_id = 0;         ///< function chosen in lookup_jbt, 0 for none
    QString m_filter_dept_path;
};

/// What every employee list starts from: employees at work.
[[nodiscard]] QString employeesAtWork();

} // namespace base
