#pragma once

#include "suggest/Match.h"

namespace gfc::suggest {

// Of which run a tag seems to be.
struct Reading {
    int Run = 0; // 0 where nothing says it
    Found Why{Evidence::RunOrder, {}};
    bool IsSure = false;
};

// A variable and the tags that mean it.
struct Known {
    const binding::VariableRow* Row = nullptr;
    std::vector<Match> Matches;
};

// One reading for each of the facts, of those that mean any variable: what their names, their modules and the
// bindings that exist say, and where these are silent, their order and their neighbours.
[[nodiscard]] std::vector<Reading> ReadingsOf(const Question& question, const std::vector<TagFacts>& facts,
                                              const std::vector<Known>& known);

} // namespace gfc::suggest
