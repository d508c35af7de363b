#pragma once

#include "binding/Catalogue.h"
#include "naming/Words.h"

#include <span>
#include <string_view>
#include <vector>

namespace gfc::suggest {

// What a name must say to mean a variable. Several rows of one stem are different ways of saying it.
struct Meaning {
    std::string_view Stem;
    std::vector<naming::Subject> Needs;  // all of them
    std::vector<naming::Subject> Allows; // and nothing beyond these
};

[[nodiscard]] std::span<const Meaning> Meanings();
[[nodiscard]] std::vector<const Meaning*> MeaningsOf(const binding::VariableRow& row);
// True for what the run's calculation reads, against what it writes.
[[nodiscard]] bool IsInput(const binding::VariableRow& row);

} // namespace gfc::suggest
