#include "tools/company/generate.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

QCommandLineOption withDefault(const QString& name, const QString& description, const QString& value) {
    return {name, description, name, value};
}

void addOptions(QCommandLineParser& parser) {
    parser.setApplicationDescription(u"Makes a company with attendance, salary structure and loans.\n"
                                     u"The server's address comes from the environment (ORVANE_DB_*) unless given."_s);
    parser.addHelpOption();
    parser.addOption(withDefault(u"employees"_s, u"How many employees."_s, u"60"_s));
    parser.addOption(withDefault(u"months"_s, u"How many months of attendance."_s, u"3"_s));
    parser.addOption({u"until"_s, u"The last of them, yyyy-mm; the month before today by default."_s, u"month"_s});
    parser.addOption(withDefault(u"seed"_s, u"Another number makes another company."_s, u"1"_s));
    parser.addOption(withDefault(u"lang"_s, u"The language of the screens, indonesia or english."_s, u"indonesia"_s));
    parser.addOption(withDefault(u"host"_s, u"Server."_s, qEnvironmentVariable("ORVANE_DB_HOST", u"127.0.0.1"_s)));
    parser.addOption(withDefault(u"port"_s, u"Port."_s, qEnvironmentVariable("ORVANE_DB_PORT", u"3306"_s)));
    parser.addOption(withDefault(u"user"_s, u"User."_s, qEnvironmentVariable("ORVANE_DB_USER")));
    parser.addOption(withDefault(u"password"_s, u"Password."_s, qEnvironmentVariable("ORVANE_DB_PASSWORD")));
    parser.addOption(withDefault(u"database"_s, u"Main database; the other one has _app behind it."_s, u"orvane"_s));
    parser.addOption(
        {u"keep"_s, u"Keep a finished company and only set its language; drop an unfinished one first."_s});
    parser.addOption({u"replace"_s, u"Drop what is there first."_s});
}

int positive(const QCommandLineParser& parser, const QString& option, int highest) {
    bool isNumber = false;
    const int value = parser.value(option).toInt(&isNumber);
    if (!isNumber || value < 1 || value > highest)
        throw std::runtime_error(u"--%1 takes a number from 1 to %2"_s.arg(option).arg(highest).toStdString());
    return value;
}

QDate lastMonth(const QCommandLineParser& parser) {
    if (!parser.isSet(u"until"_s))
        return company::Options().lastMonth;
    const QDate month = QDate::fromString(parser.value(u"until"_s), u"yyyy-MM"_s);
    if (!month.isValid())
        throw std::runtime_error("--until takes a month such as 2026-03");
    return month;
}

QString language(const QCommandLineParser& parser) {
    const QString value = parser.value(u"lang"_s);
    if (value != u"indonesia"_s && value != u"english"_s)
        throw std::runtime_error("--lang takes indonesia or english");
    return value;
}

void work(const QCommandLineParser& parser) {
    const db::ConnectionSettings settings{.host = parser.value(u"host"_s),
                                          .port = quint16(positive(parser, u"port"_s, 65535)),
                                          .user = parser.value(u"user"_s),
                                          .password = parser.value(u"password"_s),
                                          .database = parser.value(u"database"_s)};
    const company::Options options{.employees = positive(parser, u"employees"_s, 1000000),
                                   .months = positive(parser, u"months"_s, 240),
                                   .lastMonth = lastMonth(parser),
                                   .seed = parser.value(u"seed"_s).toULongLong(),
                                   .language = language(parser)};
    if (parser.isSet(u"keep"_s) && company::exists(settings)) {
        company::setLanguage(settings, options.language);
        return;
    }
    if (parser.isSet(u"replace"_s) || parser.isSet(u"keep"_s))
        company::uninstall(settings);
    company::generate(settings, options);
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    addOptions(parser);
    parser.process(application);
    try {
        work(parser);
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "company: %s\n", fault.what());
        return 1;
    }
    return 0;
}
