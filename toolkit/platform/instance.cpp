#include "toolkit/platform/instance.h"

#include "toolkit/platform/log.h"

#include <QCryptographicHash>
#include <QFileInfo>

#include <sys/socket.h>
#include <sys/un.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <system_error>

namespace platform {

namespace {

constexpr QByteArrayView raiseMessage = "raise";

// A leading zero byte puts the name into the system's own table instead of a folder: nothing is left behind by a
// killed process. The table has no owners, so any user of the machine shares the place, as told by the path alone.
QByteArray socketName(const QString& programPath) {
    const QFileInfo program(programPath);
    const QString canonical = program.canonicalFilePath();
    const QString path = canonical.isEmpty() ? program.absoluteFilePath() : canonical;
    const QByteArray hash = QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha256).toHex();
    return QByteArray(1, '\0') + "orvane-payroll-" + hash;
}

/// A socket address as the system's calls take it.
class Address final {
public:
    explicit Address(const QByteArray& name) : m_length(socklen_t(offsetof(sockaddr_un, sun_path) + name.size())) {
        m_address.sun_family = AF_UNIX;
        std::memcpy(m_address.sun_path, name.constData(), size_t(name.size()));
    }
    const sockaddr* get() const { return reinterpret_cast<const sockaddr*>(&m_address); }
    socklen_t length() const { return m_length; }

private:
    sockaddr_un m_address{};
    socklen_t m_length;
};

[[noreturn]] void raiseSystemError(const char* what) {
    throw std::system_error(errno, std::system_category(), what);
}

Descriptor datagramSocket() {
    Descriptor fd(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (!fd)
        raiseSystemError("instance socket");
    return fd;
}

bool takePlace(const Descriptor& fd, const Address& place) {
    if (::bind(fd.get(), place.get(), place.length()) == 0)
        return true;
    if (errno != EADDRINUSE)
        raiseSystemError("instance name");
    return false;
}

/// False where nobody holds the place any more. A holder too busy to take the message is running all the same.
bool askToRaise(const Descriptor& fd, const Address& place) {
    const ssize_t sent =
        ::sendto(fd.get(), raiseMessage.data(), size_t(raiseMessage.size()), MSG_NOSIGNAL, place.get(), place.length());
    if (sent >= 0)
        return true;
    qCWarning(platformLog) << "running instance not told:" << std::strerror(errno);
    return errno != ECONNREFUSED;
}

} // namespace

QString runningProgram() {
    return QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget();
}

InstanceGuard::InstanceGuard(const QString& programPath) : m_name(socketName(programPath)) {}

InstanceGuard::~InstanceGuard() = default;

bool InstanceGuard::CheckPreviousInstance() {
    const Address place(m_name);
    Descriptor fd = datagramSocket();
    // The holder may die between the two calls; then the place is free, or another start has just taken it.
    constexpr int attempts = 10;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        if (takePlace(fd, place)) {
            m_socket = std::move(fd);
            return false;
        }
        if (askToRaise(fd, place))
            return true;
    }
    errno = EAGAIN;
    raiseSystemError("instance name");
}

void InstanceGuard::listen() {
    m_notifier = std::make_unique<QSocketNotifier>(m_socket.get(), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &InstanceGuard::receive);
}

void InstanceGuard::ReleaseInstance() {
    m_notifier.reset();
    m_socket = Descriptor();
}

// Anybody on the machine can write here: all but the one message is dropped, and that one does no harm.
void InstanceGuard::receive() {
    std::array<char, 16> buffer{};
    const ssize_t length = ::recv(m_socket.get(), buffer.data(), buffer.size(), MSG_TRUNC);
    if (length == raiseMessage.size() && raiseMessage == QByteArrayView(buffer.data(), length))
        Q_EMIT raiseRequested();
    else
        qCWarning(platformLog) << "message that is no request to raise, bytes:" << length;
}

} // namespace platform
