#pragma once

#include "frame/base/services.h"
#include "tests/support/test_database.h"

/// Two branches, two functions, a tree of departments and seven employees, one of them not at work any more and one
/// reserved; a session with both databases.
struct SmallCompany {
    SmallCompany();

    TestDatabase database;
    frame::Services services{[] { return QDateTime(QDate(2026, 11, 5), QTime(10, 0)); }, nullptr};
};

/// The object of that name among the children; the test ends where there is none.
template <typename Control>
[[nodiscard]] Control& child(QWidget& parent, const char16_t* name) {
    auto* found = parent.findChild<Control*>(QString::fromUtf16(name));
    if (!found)
        qFatal("no such control");
    return *found;
}
