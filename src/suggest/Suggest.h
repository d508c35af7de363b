#pragma once

#include "binding/Catalogue.h"
#include "project/TagInventory.h"

#include <string>
#include <string_view>
#include <vector>

// Which free tag is most likely meant for a variable, and why. Nothing is bound here; whoever asks shows the
// reason and lets a person decide.
namespace gfc::suggest {

enum class Confidence { None, Fair, High };

// "none", "fair" or "high".
[[nodiscard]] std::string_view TextOf(Confidence confidence);

// A variable of one run; Run is 1 to 5, and 0 for what all runs share.
struct Want {
    int Run = 0;
    const binding::VariableRow* Row = nullptr; // of the catalogue

    bool operator==(const Want&) const = default;
};

// All variables that the choices call for of one run, stage by stage in the order in which they are bound.
[[nodiscard]] std::vector<Want> VariablesOfRun(int run, const binding::Conditions& conditions);

struct BoundVariable {
    Want Variable;
    config::TagBinding Binding;
};

// A configured station of the project, by which names that say nothing may still be known.
struct OtherStation {
    std::string Name;
    std::vector<BoundVariable> Bound;
};

struct Question {
    project::TagList Tags;   // what the station offers for binding, bound or not, in delivery order
    std::vector<int> Runs;   // the station's active runs, 1 to 5, ascending
    std::vector<Want> Wants; // all unbound variables that are known: the more, the better each is told
    std::vector<BoundVariable>
        Bound; // what runs and stages of this station bind, in the file or in this pass
    std::vector<OtherStation> Others;
};

struct Suggestion {
    Want Variable;
    config::TagBinding Binding; // empty where nothing is suggested
    suggest::Confidence Confidence = suggest::Confidence::None;
    std::string Reason; // for people; says of None what is missing
    int CopiedFrom = 0; // the run that has the same tag, for the gas data of one analyser; else 0
};

// One for each want, in the same order. Two suggestions never name the same tag, but those that are copied.
[[nodiscard]] std::vector<Suggestion> Suggest(const Question& question);

// For wants without a tag of their own: free registers whose names say nothing or that they are spare, in
// order of register, preferably of the module that holds the others of the stage. All are fair at most. Tags
// that the suggestions name are left out.
[[nodiscard]] std::vector<Suggestion> OfferSpares(const Question& question,
                                                  const std::vector<Suggestion>& suggestions);

// What may be bound at all: the tags of the inventory without those of the working modules.
[[nodiscard]] project::TagList OfferedTags(const project::TagInventory& inventory,
                                           const config::WorkingModules& working);

} // namespace gfc::suggest
