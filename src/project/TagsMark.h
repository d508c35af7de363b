#pragma once

#include "project/TagInventory.h"

#include <cstddef>

namespace gfc::project {

// A number that is another one, but for an unlikely chance, as soon as a tag is renamed, moved, added or
// taken away. Holds within one run of the program.
[[nodiscard]] std::size_t MarkOf(const TagList& tags);

} // namespace gfc::project
