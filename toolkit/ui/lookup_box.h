#pragma once

#include "toolkit/data/data_set.h"

#include <QComboBox>

/// Chooses one record of a data set by a text that it shows; typing narrows the list. Choosing moves the set's cursor
/// to the record. An empty text means no choice.
class LookupBox final : public QComboBox {
    Q_OBJECT

public:
    explicit LookupBox(QWidget* parent = nullptr);

    void setSource(data::DataSet* set, const QString& keyField, const QString& showField);
    /// Shows the record with the key and makes it current; empties the box where there is none.
    void setKey(const QVariant& key);
    /// Shows the text and makes its first record current; empties the box where there is none.
    void setText(const QString& text);
    void clearChoice() { setCurrentIndex(-1); }
    /// What the chosen entry reads; half-typed text does not count.
    [[nodiscard]] QString text() const { return itemText(currentIndex()); }
    /// Chooses the entry that reads as what was typed; none where no entry does.
    void takeTyped();

Q_SIGNALS:
    /// The user has chosen an entry or emptied the box.
    void closedUp();

private:
    void fill();
    void chosen();

    data::DataSet* m_set = nullptr;
    QString m_keyField;
    QString m_showField;
};
