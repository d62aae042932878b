#include "tests/report/paper.h"

#include <algorithm>
#include <cmath>
#include <map>

using namespace Qt::StringLiterals;

namespace {

QString shown(const report::Mark& mark) {
    if (mark.kind == report::Mark::Kind::Frame)
        return u'[' + (mark.fill.isValid() ? mark.fill.name() : QString()) + u']';
    const QString text = QString(mark.text).replace(u'\n', u'/');
    return mark.look.underline ? u'_' + text + u'_' : text;
}

QStringList linesOf(const report::Page& page, const QString& band) {
    std::map<long, std::multimap<double, QString>> lines;
    for (const report::Mark& mark : page.marks)
        if ((band.isEmpty() || mark.band == band) && mark.kind != report::Mark::Kind::Rule)
            lines[std::lround(mark.box.y() * 10)].emplace(mark.box.x(), shown(mark));
    QStringList result;
    for (const auto& [y, texts] : lines) {
        QStringList line;
        for (const auto& [x, text] : texts)
            line << text;
        result << line.join(u" | "_s);
    }
    return result;
}

} // namespace

std::string paper(const report::Document& document) {
    QStringList result;
    int number = 0;
    for (const report::Page& page : document.pages)
        result << u"page %1 of %2"_s.arg(++number).arg(document.pages.size()) << linesOf(page, {});
    return result.join(u'\n').toStdString();
}

std::string paper(const report::Document& document, const QString& band) {
    QStringList result;
    for (const report::Page& page : document.pages)
        result << linesOf(page, band);
    return result.join(u'\n').toStdString();
}

std::unique_ptr<data::MemTable> table(const QStringList& fields, const QList<QStringList>& rows) {
    std::vector<data::Field> columns;
    for (const QString& name : fields)
        columns.push_back({.name = name});
    auto result = std::make_unique<data::MemTable>(columns);
    result->open();
    for (const QStringList& row : rows) {
        result->append();
        for (qsizetype i = 0; i < row.size(); ++i)
            result->setValue(fields[i], row[i]);
        result->post();
    }
    result->first();
    return result;
}
