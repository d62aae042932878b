#pragma once

#include "frame/base/session.h"
#include "toolkit/ui/tree_box.h"

namespace frame {

/// Fills the box with the departments, chooses the first one and expands all below it. A suite without departments
/// gets its root first. Throws data::Fault on a department whose parent is missing; the levels above it stand in the
/// tree by then.
void FillDeptTree(TreeBox& box, Session& session);

/// The chosen department's path as a pattern for a search: the texts of its ancestors from the root, each followed by
/// four backslashes, which a literal and a pattern turn into the one of the stored path, then its own text.
[[nodiscard]] QString deptPath(const TreeBox& box);

} // namespace frame
