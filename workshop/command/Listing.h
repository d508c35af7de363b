#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace gfc::workshop {

/// Rows under their headings, each column as wide as its widest text.
void PrintListing(std::ostream& out, const std::vector<std::vector<std::string>>& headingAndRows);

} // namespace gfc::workshop
