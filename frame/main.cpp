#include "frame/program.h"
#include "toolkit/ui/message_dialog.h"
#include "toolkit/ui/theme.h"

#include <QApplication>
#include <QFileInfo>

#include <cstdio>
#include <cstdlib>
#include <exception>

namespace {

frame::ProgramEnvironment environmentOf(int argc, char** argv) {
    frame::ProgramEnvironment environment;
    environment.programPath = platform::runningProgram();
    environment.folder = QFileInfo(environment.programPath).absolutePath();
    for (int i = 0; i < argc; ++i)
        environment.arguments << QString::fromLocal8Bit(argv[i]);
    return environment;
}

/// Without a display Qt ends by an abort, and while it starts it has no other fatal fault.
void endWithoutDisplay(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type != QtFatalMsg) {
        std::fprintf(stderr, "%s\n", qPrintable(text));
        return;
    }
    std::fputs("There is no display to show the program on.\n", stderr);
    std::_Exit(EXIT_FAILURE);
}

} // namespace

int main(int argc, char** argv) {
    try {
        frame::Program program(environmentOf(argc, argv));
        // A refused start must leave no trace, so it is told before the window system hears of the process.
        if (!program.isAdmitted())
            return 0;
        // The arguments are the launcher's texts; none of them is an option of the toolkit.
        int ownName = 1;
        const QtMessageHandler usual = qInstallMessageHandler(endWithoutDisplay);
        QApplication application(ownName, argv);
        qInstallMessageHandler(usual);
        applyTheme(application);
        const int code = program.openFrame() ? QApplication::exec() : 0;
        program.closeAll();
        return code;
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "%s\n", fault.what());
        return 1;
    }
}
