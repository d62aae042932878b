#pragma once

#include "base/messages.h"
#include "toolkit/data/data_set.h"
#include "toolkit/ui/ticks.h"

#include <functional>

namespace base {

// The ticks of a list lie in its field "pilih": -1 ticked, anything else not. They are never written back and are
// lost when the list is read again.

/// Told of each row while it is current and before its tick is stored, with the new tick as text, "-1" or "0".
using TickToggled = std::function<void(const QString& text)>;

/// Ticks every row as wished. The bound views refresh once, at the end; the cursor stays on its row.
void setTicks(data::DataSet& list, TickWish wish, const TickToggled& toggled = {});

/// Calls the action on each ticked row while it is current; the cursor returns to its row afterwards.
void forEachTicked(data::DataSet& list, const std::function<void()>& action);

/// For what is done to one row: makes the one ticked row current. False where none is ticked, or several, of which the
/// user is told.
[[nodiscard]] bool goToOnlyTicked(data::DataSet& list, Messages& messages, QWidget* screen, const MessageText& several);

} // namespace base
