#pragma once

#include "project/AddOnLibrary.h"
#include "project/WireRecords.h"

#include <memory>
#include <vector>

namespace gfc::bench {

// The gate to an add-on library that delivers these records, which must outlive it, for every station. There
// is one such library at a time, as there is one in the program.
[[nodiscard]] std::unique_ptr<project::AddOnLibrary>
LibraryOver(const std::vector<project::TagRecord>& records);

} // namespace gfc::bench
