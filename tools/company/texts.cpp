#include "tools/company/texts.h"

#include "tools/company/bulk_insert.h"

#include <QFile>

#include <stdexcept>

using namespace Qt::StringLiterals;

// The function behind the macro is global.
static void loadResources() {
    Q_INIT_RESOURCE(company);
}

namespace company {

namespace {

QString contentOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("No such table of texts: " + path.toStdString());
    return QString::fromUtf8(file.readAll());
}

[[noreturn]] void refuse(qsizetype line, const char* why) {
    throw std::runtime_error("Table of texts, line " + std::to_string(line) + ": " + why);
}

} // namespace

QList<QStringList> textRows(const QString& table, const QStringList& header) {
    QStringList lines = table.split(u'\n');
    if (lines.last().isEmpty())
        lines.removeLast();
    QList<QStringList> rows;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        rows << lines[i].split(u'\t');
        if (rows.last().size() != header.size())
            refuse(i + 1, "wrong number of columns");
        if (rows.last().contains(QString()))
            refuse(i + 1, "an empty cell");
    }
    if (rows.isEmpty() || rows.first() != header)
        refuse(1, "not the expected header");
    rows.removeFirst();
    return rows;
}

void writeTexts(db::Connection& app) {
    loadResources();
    BulkInsert captions(app, "change_lang (com_form, com_name, no_index, indonesia, english)");
    for (const QStringList& row : textRows(contentOf(u":/company/texts/captions.tsv"_s),
                                           {u"form"_s, u"component"_s, u"no_index"_s, u"indonesia"_s, u"english"_s}))
        captions.row(row[0], row[1], row[2].toInt(), row[3], row[4]);
    captions.finish();

    BulkInsert messages(app, "tvk_message (message_id, com_form, indonesia, english)");
    for (const QStringList& row : textRows(contentOf(u":/company/texts/messages.tsv"_s),
                                           {u"message_id"_s, u"form"_s, u"indonesia"_s, u"english"_s}))
        messages.row(row[0], row[1], row[2], row[3]);
    messages.finish();
}

} // namespace company
