#pragma once

#include "base/services.h"
#include "tests/support/test_database.h"
#include "toolkit/ui/message_dialog.h"

#include <functional>

/// Two branches, two functions, a tree of departments and seven employees, one of them not at work any more and one
/// reserved; a session with both databases.
struct SmallCompany {
    SmallCompany();

    TestDatabase database;
    base::Services services{[] { return QDateTime(QDate(2026, 11, 5), QTime(10, 0)); }, nullptr};
};

/// What the message says that the action shows and that is answered with OK; empty where it shows none.
[[nodiscard]] Message messageDuring(const std::function<void()>& action);

/// The object of that name among the children; the test ends where there is none.
template <typename Control>
[[nodiscard]] Control& child(QWidget& parent, const char16_t* name) {
    auto* found = parent.findChild<Control*>(QString::fromUtf16(name));
    if (!found)
        qFatal("no such control");
    return *found;
}
