#include "base/messages.h"

#include "toolkit/fault/drop_fault.h"
#include "toolkit/text/sql_text.h"
#include "toolkit/ui/handler.h"

using namespace Qt::StringLiterals;

namespace base {

QString MessageText::id() const {
    return u"message_id[%1]"_s.arg(number);
}

Messages::Messages(Session& session, const Language& language, QObject* owner) :
    m_session(session), m_language(language), Msd_Konfirmasi(MessageKind::Confirmation, owner),
    Msd_Error(MessageKind::Error, owner), Msd_Informasi(MessageKind::Information, owner),
    Input_dialog_bahasa(u"[ WARNING ] Change Language"_s, u"Input : "_s, owner) {
    Msd_Konfirmasi.setObjectName(u"Msd_Konfirmasi"_s);
    Msd_Error.setObjectName(u"Msd_Error"_s);
    Msd_Informasi.setObjectName(u"Msd_Informasi"_s);
    Input_dialog_bahasa.setObjectName(u"Input_dialog_bahasa"_s);
}

void Messages::allowEditing(bool allowed) {
    Msd_Konfirmasi.setButtonCount(allowed ? 3 : 2);
    Msd_Error.setButtonCount(allowed ? 2 : 1);
    Msd_Informasi.setButtonCount(allowed ? 2 : 1);
}

QString Messages::LookupMessage(const QString& messageId, const QString& text, const QString& form) {
    data::SqlQuery& sql = m_session.sql_temp_lang;
    sql.openSql(u"select * from tvk_message where com_form="_s + quotedSqlText(form) + u" and message_id="_s +
                quotedSqlText(messageId) + u' ');
    const QString stored = sql.text(m_language.lang_column());
    return stored.isEmpty() ? text : stored;
}

QString Messages::textOf(const MessageText& message) {
    try {
        return LookupMessage(message.id(), message.text, message.form);
    } catch (const db::Fault& fault) {
        if (!fault.isConnectionLoss())
            throw;
        // What is to be said about a lost connection would be lost with it.
        fault::reportDroppedFault("teks pesan yang tersimpan", fault);
        return message.text;
    }
}

int Messages::show(MessageDialog& dialog, QWidget* screen, const MessageText& message, const QString& detail) {
    const Message stored{message.form, message.id(), textOf(message)};
    Message shown = stored;
    shown.text.replace(u"%1"_s, detail);
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
    const QString key = u"where message_id=%1 and com_form=%2 "_s.arg(id, form);
    const QString& column = m_language.lang_column();
    if (message.text.isEmpty()) {
        m_session.ADOCom_update_lang.execute(u"delete from tvk_message "_s + key);
        return;
    }
    const QString text = EscapeSqlText(message.text);
    m_session.sql_cek_lang.openSql(u"select * from tvk_message "_s + key);
    if (!m_session.sql_cek_lang.isEmpty())
        m_session.ADOCom_update_lang.execute(u"update tvk_message set "_s + column + u'=' + text + u' ' + key);
    else
        m_session.ADOCom_update_lang.execute(u"insert into tvk_message(message_id, com_form, "_s + column +
                                             u") values("_s + id + u", "_s + form + u", "_s + text + u") "_s);
}

} // namespace base
