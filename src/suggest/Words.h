#pragma once

#include "suggest/Match.h"

namespace gfc::suggest {

// What the evidence says, in the words of its row.
[[nodiscard]] std::string TextOf(const Found& found);

// What speaks for the tag and against it, and why it is of the run, in one line.
[[nodiscard]] std::string ReasonOf(const std::vector<Found>& evidence, const Found& run);

} // namespace gfc::suggest
