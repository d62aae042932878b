#include "tests/report/paper.h"

#include <QProcess>
#include <gtest/gtest.h>

#include <cmath>
#include <map>

using namespace Qt::StringLiterals;

namespace {

QStringList linesOf(const report::Page& page, const QString& band) {
    std::map<long, std::multimap<double, QString>> lines;
    for (const report::Mark& mark : page.marks) {
        const QString text = mark.kind == report::Mark::Kind::Frame ? u"[]"_s : QString(mark.text).replace(u'\n', u'/');
        if ((band.isEmpty() || mark.band == band) && mark.kind != report::Mark::Kind::Rule)
            lines[std::lround(mark.box.y() * 10)].emplace(mark.box.x(), text);
    }
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

std::string paper(const report::Document& document, const QString& band) {
    QStringList result;
    int number = 0;
    for (const report::Page& page : document.pages) {
        if (band.isEmpty())
            result << u"page %1 of %2"_s.arg(++number).arg(document.pages.size());
        result << linesOf(page, band);
    }
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

QString outputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << program.toStdString();
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}
