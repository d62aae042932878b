#include "frame/base/messages.h"

#include "toolkit/fault/drop_fault.h"
#include "toolkit/text/sql_text.h"
#include "toolkit/ui/handler.h"

#include <utility>

namespace frame {

MessageText::MessageText(QString form, int number, QString text) :
    m_form(std::move(form)), m_number(number), m_text(std::move(text)) {
    declared().push_back(this);
}

QString MessageText::id() const {
    return QStringLiteral("message_id[%1]").arg(m_number);
}

std::vector<const MessageText*>& MessageText::declared() {
    static std::vector<const MessageText*> messages;
    return messages;
}

Messages::Messages(Session& session, const Language& language, QObject* owner) :
    m_session(session), m_language(language), Msd_Konfirmasi(MessageKind::Confirmation, owner),
    Msd_Error(MessageKind::Error, owner), Msd_Informasi(MessageKind::Information, owner),
    Input_dialog_bahasa(QStringLiteral("[ WARNING ] Change Language"), QStringLiteral("Input : "), owner) {
    Msd_Konfirmasi.setObjectName(QStringLiteral("Msd_Konfirmasi"));
    Msd_Error.setObjectName(QStringLiteral("Msd_Error"));
    Msd_Informasi.setObjectName(QStringLiteral("Msd_Informasi"));
    Input_dialog_bahasa.setObjectName(QStringLiteral("Input_dialog_bahasa"));
}

void Messages::allowEditing(bool allowed) {
    Msd_Konfirmasi.setButtonCount(allowed ? 3 : 2);
    Msd_Error.setButtonCount(allowed ? 2 : 1);
    Msd_Informasi.setButtonCount(allowed ? 2 : 1);
}

QString Messages::LookupMessage(const QString& messageId, const QString& text, const QString& form) {
    data::SqlQuery& sql = m_session.sql_temp_lang;
    sql.openSql(QStringLiteral("select * from tvk_message where com_form=") + quotedSqlText(form) +
                QStringLiteral(" and message_id=") + quotedSqlText(messageId) + u' ');
    const QString stored = sql.text(m_language.lang_column());
    return stored.isEmpty() ? text : stored;
}

QString Messages::textOf(const MessageText& message) {
    try {
        return LookupMessage(message.id(), message.text(), message.form());
    } catch (const db::Fault& fault) {
        if (!fault.isConnectionLoss())
            throw;
        // What is to be said about a lost connection would be lost with it.
        fault::reportDroppedFault("teks pesan yang tersimpan", fault);
        return message.text();
    }
}

int Messages::show(MessageDialog& dialog, QWidget* screen, const MessageText& message, const QString& detail) {
    const Message stored{message.form(), message.id(), textOf(message)};
    Message shown = stored;
    shown.text.replace(QStringLiteral("%1"), detail);
    const int result = dialog.execute(screen, shown);
    if (result == MessageLanguage)
        EditMessage(stored, screen);
    return result;
}

void Messages::error(QWidget* screen, const MessageText& message) {
    ActionRefusal::note();
    show(Msd_Error, screen, message);
}

void Messages::inform(QWidget* screen, const MessageText& message) {
    show(Msd_Informasi, screen, message);
}

bool Messages::confirm(QWidget* screen, const MessageText& message, const QString& detail) {
    return show(Msd_Konfirmasi, screen, message, detail) == MessageOk;
}

void Messages::EditMessage(const Message& message, QWidget* screen) {
    const std::optional<QString> text = Input_dialog_bahasa.execute(screen, message.text);
    if (text)
        storeText({message.form, message.id, *text});
}

void Messages::storeText(const Message& message) {
    const QString id = quotedSqlText(message.id);
    const QString form = quotedSqlText(message.form);
    const QString key = QStringLiteral("where message_id=%1 and com_form=%2 ").arg(id, form);
    const QString& column = m_language.lang_column();
    if (message.text.isEmpty()) {
        m_session.ADOCom_update_lang.execute(QStringLiteral("delete from tvk_message ") + key);
        return;
    }
    const QString text = EscapeSqlText(message.text);
    m_session.sql_cek_lang.openSql(QStringLiteral("select * from tvk_message ") + key);
    if (!m_session.sql_cek_lang.isEmpty())
        m_session.ADOCom_update_lang.execute(QStringLiteral("update tvk_message set ") + column + u'=' + text + u' ' +
                                             key);
    else
        m_session.ADOCom_update_lang.execute(QStringLiteral("insert into tvk_message(message_id, com_form, ") + column +
                                             QStringLiteral(") values(") + id + QStringLiteral(", ") + form +
                                             QStringLiteral(", ") + text + QStringLiteral(") "));
}

} // namespace frame
