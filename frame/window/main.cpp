#include "frame/window/program.h"
#include "toolkit/ui/message_dialog.h"
#include "toolkit/ui/theme.h"

#include <QApplication>
#include <QFileInfo>

#include <cstdio>
#include <exception>

namespace {

window::ProgramEnvironment environmentOf(int argc, char** argv) {
    window::ProgramEnvironment environment;
    environment.programPath = platform::runningProgram();
    environment.folder = QFileInfo(environment.programPath).absolutePath();
    for (int i = 0; i < argc; ++i)
        environment.arguments << QString::fromLocal8Bit(argv[i]);
    return environment;
}

} // namespace

int main(int argc, char** argv) {
    try {
        window::Program program(environmentOf(argc, argv));
        // A refused start must leave no trace, so it is told before the window system hears of the process.
        if (!program.isAdmitted())
            return 0;
        // The arguments are the launcher's texts; none of them is an option of the toolkit.
        int ownName = 1;
        QApplication application(ownName, argv);
        applyTheme(application);
        const int code = program.openFrame() ? QApplication::exec() : 0;
        program.closeAll();
        return code;
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "%s\n", fault.what());
        return 1;
    }
}
