#pragma once

#include "toolkit/platform/descriptor.h"

#include <QObject>
#include <QSocketNotifier>
#include <QString>

#include <memory>

namespace platform {

/// Path of the program that runs in this process.
[[nodiscard]] QString runningProgram();

/// Keeps one running instance per installed path and user. What marks the running one is a socket whose name follows
/// from both; the system frees it when the process dies, however it dies. Another user's process can neither end a
/// start nor raise the running one, whatever it does with that name. Needs no application object before listen().
class InstanceGuard final : public QObject {
    Q_OBJECT

public:
    /// Symbolic links in `programPath` are resolved, so two roads to one file are one program.
    explicit InstanceGuard(const QString& programPath);
    ~InstanceGuard() override;

    /// True where another instance runs and this process must end; that instance has then been asked to raise itself.
    /// False where this process may run. Throws std::system_error where the system has no sockets.
    [[nodiscard]] bool CheckPreviousInstance();

    /// From now on raiseRequested() tells each later start; starts that came before this call are told now. Call it
    /// once the application object exists, in the process that CheckPreviousInstance let pass.
    void listen();

    /// Gives the place free for the next start. Harmless in a process that never held it, and when called twice.
    void ReleaseInstance();

Q_SIGNALS:
    void raiseRequested();

private:
    void receive();

    QByteArray m_name;
    Descriptor m_socket;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace platform
