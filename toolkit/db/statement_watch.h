#pragma once

#include <QString>

namespace db {

/// Is told while a statement keeps its caller waiting, so that a person can see it and give it up.
class StatementWatch {
public:
    enum class Wish { GoOn, Cancel };

    virtual ~StatementWatch() = default;
    /// Called some twenty times a second while nothing comes from the server. A wish to cancel is to be repeated until
    /// ended(). May let events run; other statements of the thread are refused meanwhile.
    [[nodiscard]] virtual Wish waiting() = 0;
    /// The statement has ended, in whichever way; called once where waiting() was.
    virtual void ended() = 0;
    /// What the fault of a cancelled statement says.
    [[nodiscard]] virtual QString cancelled() const = 0;
};

} // namespace db
