#pragma once

#include "base/session.h"
#include "toolkit/ui/tree_box.h"

namespace base {

/// Fills the box with the departments, chooses the first one and expands all below it. A suite without departments
/// gets its root first. A department whose parent is missing stands under the root with its whole path as its text.
void FillDeptTree(TreeBox& box, Session& session);

/// The chosen department's path as a pattern for a search: its steps from the root, parted by four backslashes, which a
/// literal and a pattern turn into the one of the stored path.
[[nodiscard]] QString deptPath(const TreeBox& box);

} // namespace base
