#pragma once

#include "base/screen.h"
#include "toolkit/data/data_set.h"
#include "toolkit/ui/named_text.h"

#include <initializer_list>

/// What an entry screen was opened for.
enum class EntryMode { New, Edit, View };

/// A modal screen on which one record is entered, changed or looked at; its caption tells which.
class EntryScreen : public Screen {
    Q_OBJECT

protected:
    /// Stand behind the caption.
    struct Marks {
        QStringView baru = u"[Baru]";
        QStringView ubah = u"[Ubah]";
        QStringView lihat = u"[Lihat]";
    };
    EntryScreen(base::Services& services, EntryMode mode, QWidget* parent) : EntryScreen(services, mode, parent, {}) {}
    EntryScreen(base::Services& services, EntryMode mode, QWidget* parent, const Marks& marks);

    [[nodiscard]] EntryMode mode() const { return m_mode; }

    /// Reads the lists to choose from: at every activation, for a screen opened from here may have changed them.
    virtual void openLists() {}
    /// Prepares the new record or loads the one there is: at the first activation.
    virtual void openEntry() = 0;
    void FormActivate() final;

    /// The sets refuse changes and the controls are disabled: what a screen that is only looked at does with them.
    static void setReadOnly(std::initializer_list<data::DataSet*> sets, std::initializer_list<QWidget*> controls);

    /// A field that must not be left empty.
    struct Required {
        QWidget* field;
        bool isMissing;
        const base::MessageText& message;
    };
    /// Whether one of the fields is missing: the first of them gets the focus and its message is shown.
    [[nodiscard]] bool firstMissing(std::initializer_list<Required> fields);

    /// The note of a save in the audit log: "caption - Insert - [what]", or Update. Throws db::Fault.
    void logSave(const QString& what);

private:
    const EntryMode m_mode;
    NamedText m_baru;
    NamedText m_ubah;
    NamedText m_lihat;
    bool m_firstActivation = true;
};
