#pragma once

#include "Choice.h"

#include <set>

namespace gfc::test::sweep {

// "US with gage fixed": two choices that come together in a variation. Units, pressure, source of the
// diameters and number of runs give six of them.
[[nodiscard]] std::set<std::string> PairsIn(const Choice& choice);

// Of the variations of a method so few that each pair is among them still: nearly every mistake needs no
// third choice, and the method itself is always one more. Other methods get other variations.
[[nodiscard]] std::vector<Choice> PairwiseOf(const Choice& method);

// Those, or all variations where the variable GFC_WHOLE_SWEEP stands in the environment.
[[nodiscard]] std::vector<Choice> SweptOf(const Choice& method);

} // namespace gfc::test::sweep
