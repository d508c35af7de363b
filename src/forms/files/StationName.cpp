#include "forms/files/StationName.h"

#include "project/WireRecords.h"
#include "services/CodePage.h"
#include "services/Text.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace gfc::forms {

namespace {

constexpr std::size_t longestName = sizeof(project::StationRecord::Name);
static_assert(longestName == 80, "the words below say so");

bool IsOfAnotherPage(std::string_view name) {
    return !services::CodePageHolds(name);
}

// Of a name that the code page holds.
bool IsTooLong(std::string_view name) {
    return services::ToCodePage(name).value_or("").size() > longestName;
}

bool IsBlank(std::string_view name) {
    return name.find_first_not_of(" .") == std::string_view::npos;
}

bool EndsWithADot(std::string_view name) {
    return name.ends_with('.');
}

// On whichever machine: the name goes with the project.
bool IsADevice(std::string_view name) {
    constexpr std::array<std::string_view, 4> alone = {"CON", "PRN", "AUX", "NUL"};
    constexpr std::array<std::string_view, 2> numbered = {"COM", "LPT"}; // 1 to 9
    const std::string_view stem = name.substr(0, name.find('.'));
    const std::string_view head = stem.substr(0, 3);
    const auto sameName = [head](std::string_view device) { return services::EqualNoCase(head, device); };
    if (stem.size() == 3)
        return std::ranges::any_of(alone, sameName);
    return stem.size() == 4 && stem[3] >= '1' && stem[3] <= '9' && std::ranges::any_of(numbered, sameName);
}

struct Rule {
    bool (*Breaks)(std::string_view name);
    const char* Words;
};

constexpr std::array<Rule, 5> rules{{
    {IsOfAnotherPage, CharactersRefused},
    {IsTooLong, "The name of the station is longer than 80 characters."},
    {IsBlank, "The name of the station has nothing but blanks and dots."},
    {EndsWithADot, "The name of the station ends with a dot."},
    {IsADevice, "The name of the station is one that the machine keeps for a device."},
}};

} // namespace

std::string ReasonAgainst(const std::string& typedName) {
    const auto broken =
        std::ranges::find_if(rules, [&typedName](const Rule& rule) { return rule.Breaks(typedName); });
    return broken == rules.end() ? std::string() : broken->Words;
}

} // namespace gfc::forms
