#pragma once

#include "frame/base/session.h"
#include "toolkit/report/captions.h"

namespace payroll {

/// The fixed texts of the payroll reports as the program has them.
[[nodiscard]] report::Captions defaultCaptions();

/// The same with the rows of change_lang for the register's form: `com_name` is the caption's name, `lang_column` the
/// column of the language. A fault ends the walk in silence.
[[nodiscard]] report::Captions captionsOf(frame::Session& session, const QString& lang_column);

} // namespace payroll
