#pragma once

#include "workshop/import/TagImport.h"

#include <ostream>
#include <string>

namespace gfc::workshop {

enum class Detail {
    Counts,    ///< one line per station that changes
    Everything ///< and one line per change of it
};

[[nodiscard]] bool ChangesAnything(const ImportPlan& plan);
/// "2 tags added, 1 changed, 0 removed, 7 as they were".
[[nodiscard]] std::string TotalsOf(const ImportPlan& plan);
void PrintPlan(std::ostream& out, const ImportPlan& plan, Detail detail);

} // namespace gfc::workshop
