#include "tests/walk/proxy.h"

#include <QTcpSocket>
#include <QTimer>

#include <chrono>
#include <stdexcept>

namespace {

using namespace Qt::StringLiterals;

constexpr auto stallTime =
    std::chrono::milliseconds(1200); // longer than the program waits before it shows that it waits
constexpr qsizetype headerSize = 4;  // three bytes of length, the lowest first; one that counts

/// The server's answer to the loser of a deadlock, error 1213 (0x04bd).
QByteArray deadlockAnswer() {
    const QByteArray body = "\xff\xbd\x04#40001Deadlock found when trying to get lock; try restarting transaction";
    return QByteArray(1, char(body.size())) + QByteArray("\0\0\1", 3) + body;
}

/// The first whole packet, taken out of what has arrived; empty where there is none yet.
QByteArray takePacket(QByteArray& arrived) {
    const auto byte = [&](qsizetype at) { return qsizetype(uchar(arrived[at])); };
    if (arrived.size() < headerSize)
        return {};
    const qsizetype size = headerSize + byte(0) + (byte(1) << 8) + (byte(2) << 16);
    if (arrived.size() < size)
        return {};
    const QByteArray packet = arrived.first(size);
    arrived.remove(0, size);
    return packet;
}

bool isStatement(const QByteArray& packet) {
    constexpr char query = 3;
    return packet[3] == 0 && packet.size() > headerSize && packet[headerSize] == query;
}

/// The server's first packet without its offer of TLS: protocol, version up to a zero, session number, eight bytes and
/// a zero of the challenge, then the flags.
QByteArray withoutTls(QByteArray greeting) {
    constexpr char tls = 0x08; // in the second byte of the flags
    const qsizetype flags = greeting.indexOf('\0', headerSize + 1) + 1 + 4 + 9;
    greeting[flags + 1] = char(greeting[flags + 1] & ~tls);
    return greeting;
}

/// One session of the program, and the one with the server behind it.
class Link final : public QObject {
public:
    Link(qintptr descriptor, quint16 serverPort, Plan& plan, QObject* parent) : QObject(parent), m_plan(plan) {
        m_client.setSocketDescriptor(descriptor);
        if (m_plan.isGone) {
            m_client.abort();
            return;
        }
        connect(&m_client, &QTcpSocket::readyRead, this, [this] { fromClient(); });
        connect(&m_server, &QTcpSocket::readyRead, this, [this] { fromServer(); });
        connect(&m_client, &QTcpSocket::disconnected, &m_server, &QTcpSocket::disconnectFromHost);
        connect(&m_server, &QTcpSocket::disconnected, &m_client, &QTcpSocket::disconnectFromHost);
        m_server.connectToHost(QHostAddress(QHostAddress::LocalHost), serverPort);
        for (QTcpSocket* side : {&m_client, &m_server})
            side->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    }

private:
    void fromClient() {
        m_fromClient += m_client.readAll();
        if (m_plan.isGone)
            return cut();
        for (QByteArray packet; !(packet = takePacket(m_fromClient)).isEmpty();)
            if (counts(packet) && ++m_plan.seen == m_plan.statement)
                letGoWrong(packet);
            else
                m_server.write(packet);
    }

    [[nodiscard]] bool counts(const QByteArray& packet) const {
        return isStatement(packet) && (m_plan.seen > 0 || packet.contains("z_pay_process_m"));
    }

    void letGoWrong(const QByteArray& statement) {
        switch (m_plan.mishap) {
        case Mishap::CutBefore:
            return cut();
        case Mishap::CutAfter:
        case Mishap::Gone:
        case Mishap::Away:
            m_cutAtAnswer = true;
            m_server.write(statement);
            return;
        case Mishap::Deadlock:
            m_client.write(deadlockAnswer());
            return;
        case Mishap::Stall:
            QTimer::singleShot(stallTime, this, [this, statement] { m_server.write(statement); });
        }
    }

    void fromServer() {
        m_fromServer += m_server.readAll();
        if (m_cutAtAnswer) {
            m_plan.isGone = m_plan.mishap == Mishap::Gone || m_plan.mishap == Mishap::Away;
            return cut();
        }
        if (!m_isGreeted) {
            const QByteArray greeting = takePacket(m_fromServer);
            if (greeting.isEmpty())
                return;
            m_client.write(withoutTls(greeting));
            m_isGreeted = true;
        }
        m_client.write(std::exchange(m_fromServer, {}));
    }

    void cut() {
        m_client.abort();
        m_server.abort();
    }

    Plan& m_plan;
    QTcpSocket m_client;
    QTcpSocket m_server;
    QByteArray m_fromClient;
    QByteArray m_fromServer;
    bool m_isGreeted = false;
    bool m_cutAtAnswer = false;
};

} // namespace

Proxy::Proxy(quint16 serverPort) : m_serverPort(serverPort) {
    if (!listen(QHostAddress::LocalHost))
        throw std::runtime_error("no port for the proxy");
}

void Proxy::incomingConnection(qintptr descriptor) {
    new Link(descriptor, m_serverPort, plan, this);
}
