#pragma once

#include "tests/support/test_database.h"

#include <QDate>

/// Every column of the recap, each part of it read by a statement of its own that is written out here.
namespace oracle {

struct Period {
    QDate from;
    QDate to;
};

/// One line per employee at work: emp_id_auto and the figures, each as "column=value".
[[nodiscard]] QStringList recapOf(TestDatabase& database, const Period& period);

} // namespace oracle
