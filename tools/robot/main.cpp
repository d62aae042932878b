#include "tools/robot/robot.h"

#include "toolkit/ui/theme.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>

#include <cstdio>
#include <fstream>
#include <iostream>
#include <optional>
#include <span>

using namespace Qt::StringLiterals;

namespace {

/// A screen of the wanted size for the platform without a display; must be there before the application object is. On a
/// real display the display's own size stands.
void prepareScreen(QTemporaryFile& file, const QString& size) {
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    const bool display = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    if (platform != "offscreen" && (!platform.isEmpty() || display))
        return;
    if (!file.open())
        return;
    file.write(uR"({"screens":[{"name":"robot","x":0,"y":0,"width":%1,"height":%2,"logicalDpi":96}]})"_s
                   .arg(size.section(u'x', 0, 0), size.section(u'x', 1))
                   .toUtf8());
    file.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file.fileName().toLocal8Bit());
}

void describeOptions(QCommandLineParser& options) {
    options.addOptions({{u"dir"_s, u"folder that stands for the program's own"_s, u"DIR"_s, QDir::currentPath()},
                        {u"user"_s, u"login id of the launch contract; again, the words behind it"_s, u"LOGIN"_s},
                        {u"admin-id"_s, u"the per-user value"_s, u"TEXT"_s},
                        {u"now"_s, u"fixes the clock: yyyy-mm-dd hh:mm"_s, u"MOMENT"_s},
                        {u"size"_s, u"size of the screen without a display"_s, u"WxH"_s, u"1280x800"_s}});
    options.addPositionalArgument(u"SCRIPT"_s, u"file of commands; standard input without it"_s, u"[SCRIPT]"_s);
    options.addHelpOption();
}

/// Nothing where the moment of the clock cannot be read.
std::optional<frame::ProgramEnvironment> environmentFrom(const QCommandLineParser& options) {
    frame::ProgramEnvironment environment;
    environment.folder = QFileInfo(options.value(u"dir"_s)).absoluteFilePath();
    environment.programPath = environment.folder + u"/robot"_s;
    environment.arguments = QStringList{environment.programPath, frame::launchToken()} + options.values(u"user"_s);
    environment.readUserSetting = [value = options.value(u"admin-id"_s)](const QString&) { return value; };
    if (options.isSet(u"now"_s)) {
        const auto now = QDateTime::fromString(options.value(u"now"_s), u"yyyy-MM-dd HH:mm"_s);
        if (!now.isValid())
            return std::nullopt;
        environment.clock = [now] { return now; };
    }
    return environment;
}

/// The platform without a display tells of what it cannot do at every window; nobody can do anything about it.
void printWarning(QtMsgType, const QMessageLogContext& context, const QString& text) {
    if (text.startsWith("This plugin does not support"_L1) || text.startsWith("QStandardPaths: XDG_RUNTIME_DIR"_L1))
        return;
    const char* category = context.category && qstrcmp(context.category, "default") != 0 ? context.category : "";
    std::fprintf(stderr, "%s%s%s\n", category, *category ? ": " : "", qPrintable(text));
}

} // namespace

int main(int argc, char** argv) {
    qInstallMessageHandler(printWarning);
    QStringList words;
    for (const char* word : std::span(argv, std::size_t(argc)))
        words << QString::fromLocal8Bit(word);
    QCommandLineParser options;
    describeOptions(options);
    options.parse(words);
    QTemporaryFile screen;
    prepareScreen(screen, options.value(u"size"_s));
    QApplication application(argc, argv);
    // Now: a script that fails ends the program without going back through here. A real display needs no such file.
    if (!screen.fileName().isEmpty())
        screen.remove();
    applyTheme(application);
    QApplication::setQuitOnLastWindowClosed(false);
    options.process(application);
    const auto environment = environmentFrom(options);
    if (!environment) {
        std::fprintf(stderr, "error: line 0: --now takes \"yyyy-mm-dd hh:mm\"\n");
        return 2;
    }
    const QStringList files = options.positionalArguments();
    std::ifstream script;
    if (!files.isEmpty())
        script.open(files.first().toStdString());
    if (!script) {
        std::fprintf(stderr, "error: line 0: cannot read %s\n", qPrintable(files.first()));
        return 2;
    }
    return Robot(*environment, files.isEmpty() ? std::cin : script).run();
}
