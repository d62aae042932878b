#include "toolkit/platform/instance.h"

#include "toolkit/platform/log.h"

#include <QCryptographicHash>
#include <QFileInfo>

#include <sys/socket.h>
#include <sys/un.h>

#include <cerrno>
#include <chrono>
#include <cstddef>
#include <cstring>
#include <system_error>
#include <thread>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

// A leading zero byte puts the name into the system's own table instead of a folder: nothing is left behind by a
// killed process. The table has no owners: each user has a name of his own, and whoever else takes it is seen through.
QByteArray socketName(const QString& programPath) {
    const QFileInfo program(programPath);
    const QString canonical = program.canonicalFilePath();
    const QString path = canonical.isEmpty() ? program.absoluteFilePath() : canonical;
    const QByteArray hash = QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha256).toHex();
    return QByteArray(1, '\0') + "orvane-payroll-" + QByteArray::number(::geteuid()) + '-' + hash;
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

Descriptor newSocket() {
    Descriptor fd(::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (!fd)
        raiseSystemError("instance socket");
    return fd;
}

bool takePlace(const Descriptor& fd, const Address& place) {
    if (::bind(fd.get(), place.get(), place.length()) == 0) {
        if (::listen(fd.get(), SOMAXCONN) != 0)
            raiseSystemError("instance socket");
        return true;
    }
    if (errno != EADDRINUSE)
        raiseSystemError("instance name");
    return false;
}

/// Who is at the other end, as the system noted it when that end began to listen or connected.
bool isOwnUser(const Descriptor& connection) {
    ucred peer{};
    socklen_t length = sizeof peer;
    return ::getsockopt(connection.get(), SOL_SOCKET, SO_PEERCRED, &peer, &length) == 0 && peer.uid == ::geteuid();
}

enum class Holder { Nobody, OwnUser, Stranger };

/// Whose the place is. One of the own user has been asked to raise itself by the connection alone.
Holder callHolder(const Address& place) {
    const Descriptor caller = newSocket();
    if (::connect(caller.get(), place.get(), place.length()) == 0)
        return isOwnUser(caller) ? Holder::OwnUser : Holder::Stranger;
    // Given up meanwhile, or taken and not listened to yet. Any other refusal comes from somebody who keeps callers
    // away.
    return errno == ECONNREFUSED ? Holder::Nobody : Holder::Stranger;
}

} // namespace

QString runningProgram() {
    return QFileInfo(u"/proc/self/exe"_s).symLinkTarget();
}

InstanceGuard::InstanceGuard(const QString& programPath) : m_name(socketName(programPath)) {}

InstanceGuard::~InstanceGuard() = default;

bool InstanceGuard::CheckPreviousInstance() {
    const Address place(m_name);
    Descriptor fd = newSocket();
    // Between two calls a holder may die or another start may take the place.
    constexpr int attempts = 100;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        if (takePlace(fd, place)) {
            m_socket = std::move(fd);
            return false;
        }
        const Holder holder = callHolder(place);
        if (holder == Holder::OwnUser)
            return true;
        if (holder == Holder::Stranger)
            break;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    qCWarning(platformLog) << "another user holds the name of this program; later starts will not find this one";
    return false;
}

void InstanceGuard::listen() {
    if (!m_socket)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(m_socket.get(), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &InstanceGuard::receive);
}

void InstanceGuard::ReleaseInstance() {
    m_notifier.reset();
    m_socket = Descriptor();
}

void InstanceGuard::receive() {
    const Descriptor caller(::accept4(m_socket.get(), nullptr, nullptr, SOCK_CLOEXEC));
    if (caller && isOwnUser(caller))
        Q_EMIT raiseRequested();
    else
        qCWarning(platformLog) << "another user asked to raise this program";
}

} // namespace platform
