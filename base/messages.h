#pragma once

#include "base/language.h"
#include "toolkit/ui/input_dialog.h"
#include "toolkit/ui/message_dialog.h"

namespace base {

/// One message of one screen, declared once beside the screen that shows it: the number of its key and the Indonesian
/// text that holds where the table has none.
struct MessageText {
    QString form;
    int number;
    QString text;

    /// "message_id[52]"
    [[nodiscard]] QString id() const;
};

/// The message dialogs with their texts per language, and the correction of a text from the dialog itself.
class Messages final {
public:
    Messages(Session& session, const Language& language, QObject* owner);

    /// Without it the dialogs offer no Language button.
    void allowEditing(bool allowed);

    /// The text in the installation's language, the given one where the table has none.
    /// Throws data::Fault where the table has no such language.
    [[nodiscard]] QString LookupMessage(const QString& messageId, const QString& text, const QString& form);
    /// Lets the user change the text; an emptied one deletes the row with the texts of all languages.
    void EditMessage(const Message& message, QWidget* screen);

    void error(QWidget* screen, const MessageText& message);
    void inform(QWidget* screen, const MessageText& message);
    /// True for OK. Language counts as no.
    /// The detail stands where the text has "%1".
    [[nodiscard]] bool confirm(QWidget* screen, const MessageText& message, const QString& detail = {});

private:
    [[nodiscard]] QString textOf(const MessageText& message);
    int show(MessageDialog& dialog, QWidget* screen, const MessageText& message, const QString& detail = {});
    void storeText(const Message& message);

    Session& m_session;
    const Language& m_language;
    MessageDialog Msd_Konfirmasi;
    MessageDialog Msd_Error;
    MessageDialog Msd_Informasi;
    InputDialog Input_dialog_bahasa;
};

} // namespace base
