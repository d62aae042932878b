#pragma once

#include "base/session.h"
#include "toolkit/report/captions.h"

namespace base::paper {

/// The fixed texts of papers with the rows of change_lang for the form that prints them: `com_name` is the caption's
/// name, `lang_column` the column of the language. A fault ends the walk in silence.
[[nodiscard]] report::Captions captionsOf(base::Session& session, const QString& form, report::Captions captions,
                                          const QString& lang_column);

} // namespace base::paper
