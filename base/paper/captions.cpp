#include "base/paper/captions.h"

#include "toolkit/fault/drop_fault.h"

using namespace Qt::StringLiterals;

namespace base::paper {

report::Captions captionsOf(base::Session& session, const QString& form, report::Captions captions,
                            const QString& lang_column) {
    fault::dropFault("teks laporan penggajian", [&] {
        data::SqlQuery& sql = session.sql_temp_lang;
        sql.openSql(u"select * from change_lang where com_form='"_s + form + u"' "_s);
        for (; !sql.isEof(); sql.next()) {
            const QString text = sql.text(lang_column);
            // Two apostrophes stand where a text was not translated.
            if (text != u"''"_s)
                captions.replace(sql.text(u"com_name"), text);
        }
    });
    return captions;
}

} // namespace base::paper
