#include "toolkit/platform/instance.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <unistd.h>

#include <cstdlib>
#include <iostream>

// Waits for a byte on standard input, starts as a program would, says "first" or "second" and, as the first, "raised"
// for each later start. The end of standard input ends it.
int main(int argc, char** argv) {
    char gate = 0;
    if (::read(STDIN_FILENO, &gate, 1) != 1)
        return EXIT_FAILURE;
    platform::InstanceGuard guard(platform::runningProgram());
    if (guard.CheckPreviousInstance()) {
        std::cout << "second" << std::endl;
        return EXIT_SUCCESS;
    }
    std::cout << "first" << std::endl;
    const QCoreApplication application(argc, argv);
    QObject::connect(&guard, &platform::InstanceGuard::raiseRequested, [] { std::cout << "raised" << std::endl; });
    guard.listen();
    const QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &application, &QCoreApplication::quit);
    return QCoreApplication::exec();
}
