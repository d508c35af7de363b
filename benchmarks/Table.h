#pragma once

#include "Figures.h"

#include <optional>
#include <string>

namespace gfc::bench {

// In seconds, measured by whoever builds; nothing where nobody did.
struct BuildTimes {
    std::optional<double> CleanBuild;
    std::optional<double> Suite;
};

// The figures as docs/performance.md shows them.
[[nodiscard]] std::string TablesOf(const Figures& figures, const BuildTimes& times);

// Puts the text between the two marks of the file; false, with the file untouched, if it lacks them.
[[nodiscard]] bool PutBetweenMarks(const std::string& path, const std::string& text);

} // namespace gfc::bench
