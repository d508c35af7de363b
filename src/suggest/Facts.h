#pragma once

#include "naming/TagName.h"
#include "suggest/Suggest.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <unordered_map>

namespace gfc::suggest {

// Subjects as a set: each name of a plant is held against each variable, so that this is to be quick.
using SubjectSet = std::uint64_t;
static_assert(static_cast<int>(naming::Subject::Aside) < 64, "each subject has its bit");

[[nodiscard]] constexpr SubjectSet SetOf(naming::Subject subject) {
    return SubjectSet(1) << static_cast<unsigned>(subject);
}
[[nodiscard]] SubjectSet SetOf(std::span<const naming::Subject> subjects);

// What is known of a tag before any variable is looked at.
struct TagFacts {
    const project::Tag* Tag = nullptr; // of the question
    naming::TagName Name;
    std::shared_ptr<const naming::TagName> Module; // shared by the tags of the module; never null
    binding::TagClass Class = binding::TagClass::Float;
    bool IsInput = false;       // of its class: "FX" against "FY"
    bool IsFree = true;         // bound by no run and stage of this station
    bool IsAlike = false;       // another has its name, or a tool made the names differ
    std::set<std::string> Idle; // words of its name that are of the plant's scheme and say nothing
    // What its words say, and what they say together with the letters of its device, without what qualifies a
    // quantity only.
    SubjectSet Words = 0;
    SubjectSet WordsAndDevice = 0;
    SubjectSet Device = 0;   // what its letters alone say
    std::string Total;       // another tag, which totals what this one says, so that this is the rate
    bool IsByModule = false; // that it is a state its module says, and not its name
};

// One for each tag of a known class, in their order.
[[nodiscard]] std::vector<TagFacts> FactsOf(const Question& question);

// Registers of one class and number are one; the name is not looked at.
[[nodiscard]] bool IsSameRegister(const project::Tag& tag, const config::TagBinding& binding);

// The facts by their registers.
class RegisterIndex {
public:
    explicit RegisterIndex(const std::vector<TagFacts>& facts);

    // The tags of the binding's register, in the order of the facts.
    [[nodiscard]] std::vector<std::size_t> TagsOf(const config::TagBinding& binding) const;

private:
    const std::vector<TagFacts>& facts_;
    std::unordered_map<std::string, std::vector<std::size_t>> byAddress_;
};

[[nodiscard]] config::TagBinding BindingTo(const project::Tag& tag);

} // namespace gfc::suggest
