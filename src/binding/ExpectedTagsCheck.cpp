#include "binding/ExpectedTags.h"
#include "config/Vocabulary.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <charconv>
#include <optional>
#include <set>
#include <unordered_map>
#include <utility>

namespace gfc::binding {

namespace {

using Inventory = project::TagInventory;
using Entries = std::vector<ExpectedTag>;

struct ClassRow {
    Entries ExpectedTags::*Expected;
    std::vector<project::TagList Inventory::*> Searched;
};

// A physical float or long is never a binding's tag; only what the class offers is searched.
const std::array<ClassRow, 4>& Classes() {
    // clang-format off
    static const std::array<ClassRow, 4> classes = {{
        {&ExpectedTags::ExpectedFloat,   {&Inventory::VirtFX, &Inventory::VirtFY}},
        {&ExpectedTags::ExpectedAnalog,  {&Inventory::PhysAX, &Inventory::PhysAY,
                                          &Inventory::VirtAX, &Inventory::VirtAY}},
        {&ExpectedTags::ExpectedDigital, {&Inventory::PhysX,  &Inventory::PhysY,
                                          &Inventory::VirtX,  &Inventory::VirtY}},
        {&ExpectedTags::ExpectedLong,    {&Inventory::VirtLX, &Inventory::VirtLY}},
    }};
    // clang-format on
    return classes;
}

// The register that a text names in exactly the form in which registers are written: no blank, no sign where
// there is none to write, no leading zero.
std::optional<std::int32_t> RegisterOf(const std::string& text) {
    std::int32_t value = 0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, value);
    const bool whole = read.ec == std::errc{} && read.ptr == end;
    return whole && std::to_string(value) == text ? std::optional(value) : std::nullopt;
}

// The entries still looked for, so that one walk over the tags serves them all. By address alone: hardly any
// tag passes that, and only those that do have their texts compared.
class Sought {
public:
    explicit Sought(Entries& entries) {
        for (ExpectedTag& entry : entries) {
            entry.Found = false;
            if (const auto address = RegisterOf(entry.RegAddr)) {
                asked_.set(LowBits(*address));
                entries_.emplace(*address, &entry);
            }
        }
    }

    void Meet(const project::Tag& tag) {
        if (!asked_.test(LowBits(tag.RegAddr)))
            return;
        for (auto [match, last] = entries_.equal_range(tag.RegAddr); match != last; ++match)
            if (match->second->Tag == tag.TagName && match->second->Type == tag.RegType)
                match->second->Found = true;
    }

private:
    static constexpr std::size_t Bits = 1 << 16;
    static std::size_t LowBits(std::int32_t address) { return static_cast<std::uint32_t>(address) % Bits; }

    std::bitset<Bits> asked_; // no other address needs to be looked up
    std::unordered_multimap<std::int32_t, ExpectedTag*> entries_;
};

bool Passes(const ExpectedTag& entry) {
    return entry.Found && !entry.Tag.empty();
}

void WriteNo(config::FileIni& ini, const std::string& key, const std::string& file) {
    ini.WriteKey("FlowRuns", key, std::string(config::No), file);
}

constexpr std::string_view SharedComposition = "Gas Composition";

// Deliberate: the atmospheric pressure writes a key "AGA3" that nobody reads, and disables no run.
void DisableRuns(config::FileIni& ini, const Entries& entries, bool isFloat, const std::string& file) {
    for (const ExpectedTag& entry : entries) {
        if (entry.Found)
            continue;
        if (entry.Location != SharedComposition) {
            WriteNo(ini, entry.Location, file);
            continue;
        }
        // No entry stands there today. A float one counts against the first run and ends the walk.
        if (!isFloat)
            continue;
        return WriteNo(ini, "Run1", file);
    }
}

} // namespace

bool CheckExpectedTags(ExpectedTags& expected, const project::TagInventory& inventory) {
    bool allPass = true;
    for (const ClassRow& row : Classes()) {
        Entries& entries = expected.*row.Expected;
        Sought sought(entries);
        for (const auto list : row.Searched)
            for (const project::Tag& tag : inventory.*list)
                sought.Meet(tag);
        allPass = std::ranges::all_of(entries, Passes) && allPass;
    }
    return allPass;
}

// The type deliberately does not count here.
void RemoveUsedTags(project::TagList& pool, const std::vector<ExpectedTag>& used) {
    std::set<std::pair<std::int32_t, std::string_view>> taken;
    for (const ExpectedTag& entry : used)
        if (const auto address = RegisterOf(entry.RegAddr))
            taken.emplace(*address, entry.Tag);
    std::erase_if(pool, [&](const project::Tag& tag) { return taken.contains({tag.RegAddr, tag.TagName}); });
}

void DisableRunsWithErrors(config::FileIni& ini, const ExpectedTags& expected, const std::string& file) {
    const config::FileBatch batch(ini, file);
    for (const ClassRow& row : Classes())
        DisableRuns(ini, expected.*row.Expected, row.Expected == &ExpectedTags::ExpectedFloat, file);
}

} // namespace gfc::binding
