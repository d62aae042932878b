#include "base/settings_file/settings_file.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <stdexcept>
#include <string>

using namespace Qt::StringLiterals;

namespace {

constexpr int exitFailed = 2;

struct UsageFault final : std::runtime_error {
    using std::runtime_error::runtime_error;
};

QString standardInputLine() {
    std::string line;
    if (!std::getline(std::cin, line))
        throw UsageFault("no password on standard input");
    if (line.ends_with('\r'))
        line.pop_back();
    return QString::fromStdString(line);
}

QString required(const QCommandLineParser& parser, const QString& name) {
    if (!parser.isSet(name))
        throw UsageFault("--" + name.toStdString() + " is missing");
    return parser.value(name);
}

QString filled(const QCommandLineParser& parser, const QString& name) {
    QString value = required(parser, name);
    if (value.isEmpty())
        throw UsageFault("--" + name.toStdString() + " must not be empty");
    return value;
}

quint16 portNumber(const QString& text) {
    bool isNumber = false;
    const quint16 port = text.toUShort(&isNumber);
    if (!isNumber || port == 0)
        throw UsageFault("--port takes a number from 1 to 65535");
    return port;
}

settings::DatabaseSettings settingsFrom(const QCommandLineParser& parser) {
    settings::DatabaseSettings given{.user = filled(parser, u"user"_s),
                                     .server = filled(parser, u"server"_s),
                                     .password = required(parser, u"password"_s),
                                     .database = filled(parser, u"database"_s),
                                     .port = portNumber(required(parser, u"port"_s))};
    if (given.password == u"-")
        given.password = standardInputLine();
    return given;
}

QString groupFrom(const QCommandLineParser& parser) {
    const QString name = u"group"_s;
    return parser.isSet(name) ? filled(parser, name) : QString();
}

void show(const QString& path) {
    const QStringList fields = settings::readSettingsFields(path);
    std::cout << "user:     " << fields[0].toStdString() << "\nserver:   " << fields[1].toStdString()
              << "\npassword: (hidden)\ndatabase: " << fields[3].toStdString()
              << "\nport:     " << fields[4].toStdString() << '\n';
}

void addOptions(QCommandLineParser& parser) {
    parser.setApplicationDescription(u"Writes or shows the file with the database settings."_s);
    parser.addHelpOption();
    parser.addPositionalArgument(u"FILE"_s, u"The settings file, user.tvk as a rule."_s);
    parser.addOptions({
        {u"user"_s, u"Database user."_s, u"U"_s},
        {u"server"_s, u"Host name or dotted address."_s, u"S"_s},
        {u"password"_s, u"Password; - reads it from standard input."_s, u"P"_s},
        {u"database"_s, u"Main database."_s, u"D"_s},
        {u"port"_s, u"Port of the server."_s, u"N"_s},
        {u"group"_s, u"Only members of this group may read the file."_s, u"G"_s},
        {u"show"_s, u"Show the fields, the password hidden; a foreign field reads aaa."_s},
    });
}

void run(QCommandLineParser& parser) {
    if (!parser.parse(QCoreApplication::arguments()))
        throw UsageFault(parser.errorText().toStdString());
    if (parser.isSet(u"help"_s))
        parser.showHelp();
    if (parser.positionalArguments().size() != 1)
        throw UsageFault("exactly one FILE is needed");
    const QString path = parser.positionalArguments().constFirst();
    if (!parser.isSet(u"show"_s))
        settings::writeSettingsFile(path, settingsFrom(parser), groupFrom(parser));
    else if (parser.optionNames().size() == 1)
        show(path);
    else
        throw UsageFault("--show takes no other option");
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    addOptions(parser);
    try {
        run(parser);
        return EXIT_SUCCESS;
    } catch (const UsageFault& fault) {
        std::cerr << "tvk: " << fault.what() << "\ntvk --help tells the options\n";
    } catch (const settings::SettingsFileError& fault) {
        std::cerr << "tvk: " << fault.what() << '\n';
    }
    return exitFailed;
}
