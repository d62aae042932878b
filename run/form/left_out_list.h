#pragma once

#include "base/fr_daftar.h"

/// The list of employees who got no line in a run: PIN, NIK, name, cause.
[[nodiscard]] base::TextList leftOutList(QList<QStringList> rows);
