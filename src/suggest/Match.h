#pragma once

#include "suggest/Evidence.h"
#include "suggest/Facts.h"
#include "suggest/Meaning.h"

namespace gfc::suggest {

struct Found {
    Evidence Kind;
    std::string Text; // that takes the place of % in the evidence's words
};

[[nodiscard]] int WeightOf(const std::vector<Found>& evidence);
[[nodiscard]] bool Has(const std::vector<Found>& evidence, Evidence kind);

// A tag that means a variable, whichever the run.
struct Match {
    std::size_t Tag = 0; // its place among the facts
    std::vector<Found> Evidence;
    bool IsSure = true; // nothing is cut, unknown, stacked or the engineer's choice
    int Weight = 0;
};

// The tags that mean the variable, free or not, in the order of the facts. Those of the other direction only
// where none of the variable's own direction does.
[[nodiscard]] std::vector<Match> MatchesOf(const binding::VariableRow& row,
                                           const std::vector<TagFacts>& facts);

// Takes what is not known out of the sums where it stands beside three variables and more: then it is a word
// of the plant. matches are those of each variable.
void ForgiveUnknownWords(std::vector<std::vector<Match>>& matches, const std::vector<TagFacts>& facts);

} // namespace gfc::suggest
