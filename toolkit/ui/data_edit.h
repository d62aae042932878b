#pragma once

#include "toolkit/data/data_set.h"

#include <QDateEdit>
#include <QLineEdit>

/// Lets only these characters through to the edit, and at most so many of them.
void acceptOnly(QLineEdit& edit, const QString& characters, int atMost);

/// A text edit on a field of a data set: shows the current record's value, writes what was typed when it is left.
class DataEdit final : public QLineEdit {
    Q_OBJECT

public:
    explicit DataEdit(QWidget* parent = nullptr);

    void bind(data::DataSet& set, const QString& field);
    /// Shows the value as whole rupiah.
    void showMoney() { m_money = true; }

private:
    void showValue();
    void writeValue();

    data::DataSet* m_set = nullptr;
    QString m_field;
    bool m_money = false;
};

/// A date edit on a field of a data set. What is chosen is written at once.
class DataDateEdit final : public QDateEdit {
    Q_OBJECT

public:
    explicit DataDateEdit(QWidget* parent = nullptr);

    void bind(data::DataSet& set, const QString& field);

private:
    void showValue();

    data::DataSet* m_set = nullptr;
    QString m_field;
};
