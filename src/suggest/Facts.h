#pragma once

#include "naming/TagName.h"
#include "suggest/Suggest.h"

#include <optional>
#include <set>

namespace gfc::suggest {

// What is known of a tag before any variable is looked at.
struct TagFacts {
    const project::Tag* Tag = nullptr; // of the question
    naming::TagName Name;
    naming::TagName Module;
    binding::TagClass Class = binding::TagClass::Float;
    bool IsInput = false;       // of its class: "FX" against "FY"
    bool IsFree = true;         // bound by no run and stage of this station
    bool IsAlike = false;       // another has its name, or a tool made the names differ
    std::set<std::string> Idle; // words of its name that are of the plant's scheme and say nothing
};

// One for each tag of a known class, in their order.
[[nodiscard]] std::vector<TagFacts> FactsOf(const Question& question);

// Registers of one class and number are one; the name is not looked at.
[[nodiscard]] bool IsSameRegister(const project::Tag& tag, const config::TagBinding& binding);

[[nodiscard]] config::TagBinding BindingTo(const project::Tag& tag);

} // namespace gfc::suggest
