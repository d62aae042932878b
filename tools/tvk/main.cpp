#include "frame/settings_file/settings_file.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <stdexcept>
#include <string>

namespace {

constexpr int exitFailed = 2;

struct UsageError final : std::runtime_error {
    using std::runtime_error::runtime_error;
};

QString standardInputLine() {
    std::string line;
    if (!std::getline(std::cin, line))
        throw UsageError("no password on standard input");
    if (line.ends_with('\r'))
        line.pop_back();
    return QString::fromStdString(line);
}

QString required(const QCommandLineParser& parser, const QString& name) {
    if (!parser.isSet(name))
        throw UsageError("--" + name.toStdString() + " is missing");
    return parser.value(name);
}

QString filled(const QCommandLineParser& parser, const QString& name) {
    const QString value = required(parser, name);
    if (value.isEmpty())
        throw UsageError("--" + name.toStdString() + " must not be empty");
    return value;
}

quint16 portNumber(const QString& text) {
    bool isNumber = false;
    const quint16 port = text.toUShort(&isNumber);
    if (!isNumber || port == 0)
        throw UsageError("--port takes a number from 1 to 65535");
    return port;
}

settings::DatabaseSettings settingsFrom(const QCommandLineParser& parser) {
    settings::DatabaseSettings given{.user = filled(parser, QStringLiteral("user")),
                                     .server = filled(parser, QStringLiteral("server")),
                                     .password = required(parser, QStringLiteral("password")),
                                     .database = filled(parser, QStringLiteral("database")),
                                     .port = portNumber(required(parser, QStringLiteral("port")))};
    if (given.password == u"-")
        given.password = standardInputLine();
    return given;
}

QString groupFrom(const QCommandLineParser& parser) {
    const QString name = QStringLiteral("group");
    return parser.isSet(name) ? filled(parser, name) : QString();
}

void show(const QString& path) {
    const QStringList fields = settings::readSettingsFields(path);
    std::cout << "user:     " << fields[0].toStdString() << "\nserver:   " << fields[1].toStdString()
              << "\npassword: (hidden)\ndatabase: " << fields[3].toStdString()
              << "\nport:     " << fields[4].toStdString() << '\n';
}

void addOptions(QCommandLineParser& parser) {
    parser.setApplicationDescription(QStringLiteral("Writes or shows the file with the database settings."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("The settings file, user.tvk as a rule."));
    parser.addOptions({
        {QStringLiteral("user"), QStringLiteral("Database user."), QStringLiteral("U")},
        {QStringLiteral("server"), QStringLiteral("Host name or dotted address."), QStringLiteral("S")},
        {QStringLiteral("password"), QStringLiteral("Password; - reads it from standard input."), QStringLiteral("P")},
        {QStringLiteral("database"), QStringLiteral("Main database."), QStringLiteral("D")},
        {QStringLiteral("port"), QStringLiteral("Port of the server."), QStringLiteral("N")},
        {QStringLiteral("group"), QStringLiteral("Only members of this group may read the file."), QStringLiteral("G")},
        {QStringLiteral("show"), QStringLiteral("Show the fields, the password hidden; a foreign field reads aaa.")},
    });
}

void run(QCommandLineParser& parser) {
    if (!parser.parse(QCoreApplication::arguments()))
        throw UsageError(parser.errorText().toStdString());
    if (parser.isSet(QStringLiteral("help")))
        parser.showHelp();
    if (parser.positionalArguments().size() != 1)
        throw UsageError("exactly one FILE is needed");
    const QString path = parser.positionalArguments().constFirst();
    if (!parser.isSet(QStringLiteral("show")))
        settings::writeSettingsFile(path, settingsFrom(parser), groupFrom(parser));
    else if (parser.optionNames().size() == 1)
        show(path);
    else
        throw UsageError("--show takes no other option");
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    addOptions(parser);
    try {
        run(parser);
        return EXIT_SUCCESS;
    } catch (const UsageError& fault) {
        std::cerr << "tvk: " << fault.what() << "\ntvk --help tells the options\n";
    } catch (const settings::SettingsFileError& fault) {
        std::cerr << "tvk: " << fault.what() << '\n';
    }
    return exitFailed;
}
