#pragma once

#include "tools/company/employees.h"
#include "tools/company/install.h"

namespace company {

/// Makes both databases that the settings name and fills them. Throws db::Fault; what exists already is left alone, and
/// a company that could not be finished is removed.
void generate(const db::ConnectionSettings& settings, const Options& options);

/// Whether both databases exist and hold a finished company.
[[nodiscard]] bool exists(const db::ConnectionSettings& settings);

/// Chooses the language column of an existing company.
void setLanguage(const db::ConnectionSettings& settings, const QString& language);

} // namespace company
