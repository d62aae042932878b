#pragma once

#include <QTcpServer>

enum class Mishap {
    CutBefore, ///< the connection ends and the statement never arrives
    CutAfter,  ///< the statement is carried out, its answer never arrives
    Deadlock,  ///< the server answers with error 1213
    Stall,     ///< the statement arrives late
    Gone,      ///< as CutAfter, and nobody answers at the port any more
    Away,      ///< as Gone, until the plan says that somebody answers again
};

/// What is to go wrong, and how many statements came by since it was laid down.
struct Plan {
    Mishap mishap = Mishap::CutBefore;
    int statement = 0; ///< counted from 1 over all sessions, their set-up included; 0: nothing goes wrong
    int seen = 0;      ///< the first one that counts is the first that names the saved runs
    bool isGone = false;
};

/// Stands between the program and the server, on a port of its own, and lets one statement go wrong. The program sees
/// a server without TLS, since what is encrypted cannot be counted.
class Proxy final : public QTcpServer {
public:
    /// Throws std::runtime_error where no port is free.
    explicit Proxy(quint16 serverPort);

    Plan plan;

protected:
    void incomingConnection(qintptr descriptor) override;

private:
    const quint16 m_serverPort;
};
