#pragma once

#include "workshop/import/TagImport.h"

#include <span>
#include <vector>

namespace gfc::workshop {

/// What the rows of one station make of it. `tags` are those that it has so far, in delivery order. Faults
/// that show only against the project or against other rows are added to `complaints`; the plan is then of no
/// use.
[[nodiscard]] StationPlan PlanStation(const Station& station, const std::vector<Tag>& tags,
                                      std::span<const TableRow> rows, ImportMode mode,
                                      std::vector<Complaint>& complaints);

} // namespace gfc::workshop
