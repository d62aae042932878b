#pragma once

#include "base/services.h"
#include "toolkit/data/data_set.h"

#include <functional>

namespace base {

/// How the ticked rows of a list are deleted. What depends on the row is asked for while it is current.
struct Deletion {
    const MessageText& question;
    QString questionDetail{};                          ///< stands where the question has "%1"
    std::function<bool()> isNeeded{};                  ///< by something else: the row stays; none: no row is
    const MessageText* stillNeeded = nullptr;          ///< told for each row that stays
    QString action;                                    ///< in the note of the audit log, as in Services::log
    std::function<QString()> what;                     ///< the same
    std::function<QStringList()> statements;           ///< that delete the row, in their order
    std::function<void(const std::exception&)> giveUp; ///< hears of each statement that was refused
    std::function<void()> refresh;                     ///< shows the list anew, also behind a fault
};

/// Asks, unless the list is empty, and deletes the ticked rows one by one: the note first, then each statement alone,
/// so that one that is refused stops no other. Whoever stops a statement at the server means the whole deletion.
/// Throws db::Fault.
void deleteTicked(data::DataSet& list, Services& services, QWidget& screen, const Deletion& deletion);

} // namespace base
