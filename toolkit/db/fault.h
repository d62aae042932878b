#pragma once

#include "toolkit/fault/fault.h"

namespace db {

/// A statement or a connect that failed. Carries what the server or the client library said.
class Fault final : public fault::Fault {
public:
    static constexpr unsigned interrupted = 1317;

    /// code: the server's or the client library's number (0 where this program found the fault itself);
    /// sqlState: five characters; message: as the server words it; statement: the text that failed, may be empty.
    Fault(unsigned code, QString sqlState, const QString& message, QString statement);

    /// Code, SQL state and statement.
    [[nodiscard]] QString details() const override;

    [[nodiscard]] unsigned code() const { return m_code; }
    /// Said by the client library: the server was not reached, or did not answer.
    [[nodiscard]] bool isOfLibrary() const { return m_code >= 2000 && m_code < 3000; }
    /// Somebody has ended the statement; the server and the session are well.
    [[nodiscard]] bool isInterrupted() const override { return m_code == interrupted; }
    [[nodiscard]] const QString& sqlState() const { return m_sqlState; }
    [[nodiscard]] const QString& statement() const { return m_statement; }

    /// The session is lost, or none could be opened: nothing is known of what the statement asked for.
    [[nodiscard]] bool isConnectionLoss() const;
    /// Nothing that follows is worth trying: the connection is lost, or somebody cancelled the statement.
    [[nodiscard]] bool stopsWork() const;
    /// Another session's transaction was in the way; the whole transaction may succeed when it is repeated.
    [[nodiscard]] bool isConflict() const;

    /// The same as the fault of a connection that could not be opened, whatever the reason.
    [[nodiscard]] Fault whileOpening() const;

private:
    unsigned m_code;
    QString m_sqlState;
    QString m_statement;
    bool m_whileOpening = false;
};

} // namespace db
