#include "toolkit/platform/host.h"

#include "toolkit/platform/log.h"

#include <QByteArray>

#include <arpa/inet.h>
#include <netdb.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <memory>

namespace platform {

namespace {

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

bool isGroup(QStringView group) {
    return !group.isEmpty() && group.size() <= 3 && std::all_of(group.begin(), group.end(), isDigit) &&
           group.toInt() <= 255;
}

/// The name behind an address, or an empty text.
QString nameOf(in_addr address) {
    sockaddr_in host{};
    host.sin_family = AF_INET;
    host.sin_addr = address;
    std::array<char, NI_MAXHOST> name{};
    const int fault = getnameinfo(reinterpret_cast<const sockaddr*>(&host), sizeof host, name.data(), name.size(),
                                  nullptr, 0, NI_NAMEREQD);
    return fault == 0 ? QString::fromUtf8(name.data()) : QString();
}

/// The first IPv4 address behind a name, or an empty text.
QString addressOf(const QByteArray& name) {
    addrinfo hints{};
    hints.ai_family = AF_INET;
    hints.ai_socktype = SOCK_STREAM;
    addrinfo* answer = nullptr;
    if (getaddrinfo(name.constData(), nullptr, &hints, &answer) != 0)
        return {};
    const std::unique_ptr<addrinfo, decltype(&freeaddrinfo)> owner(answer, &freeaddrinfo);
    std::array<char, NI_MAXHOST> dotted{};
    const int fault =
        getnameinfo(answer->ai_addr, answer->ai_addrlen, dotted.data(), dotted.size(), nullptr, 0, NI_NUMERICHOST);
    return fault == 0 ? QString::fromLatin1(dotted.data()) : QString();
}

} // namespace

bool IsIpAddress(const QString& text) {
    const QList<QStringView> groups = QStringView(text).split(u'.');
    return groups.size() == 4 && std::all_of(groups.begin(), groups.end(), isGroup);
}

QString ResolveHost(const QString& text) {
    if (text.isEmpty())
        return {};
    in_addr address{};
    const bool isDotted = text.count(u'.') == 3 && inet_aton(text.toLatin1().constData(), &address) != 0;
    const QString found = isDotted ? nameOf(address) : addressOf(text.toUtf8());
    if (found.isEmpty())
        qCWarning(platformLog) << "not resolved:" << text;
    return found.isEmpty() ? text : found;
}

} // namespace platform
