#pragma once

#include "base/session.h"

#include <QWidget>

namespace base {

/// Replaces the captions that the screens were designed with by those of the installation's language. Rows of
/// change_lang address a control by form and component name, without regard to case, and by no_index an entry of it.
class Language final {
public:
    explicit Language(Session& session) : m_session(session) {}

    /// Applies the rows of the form to its controls as they are now. A row that names nothing is passed over; any fault
    /// ends the walk in silence, and the rest keeps its captions.
    void ApplyLanguage(QWidget& form);

    /// The column of change_lang and tvk_message that holds the language, as the last ApplyLanguage read it.
    [[nodiscard]] const QString& lang_column() const { return m_lang_column; }

private:
    void applyRows(QWidget& form);

    Session& m_session;
    QString m_lang_column;
};

/// The named object of a form, the form itself included, without regard to case; null where there is none.
[[nodiscard]] QObject* findComponent(QWidget& form, const QString& name);

} // namespace base
