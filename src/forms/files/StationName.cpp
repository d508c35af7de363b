#include "forms/files/StationName.h"

#include "project/WireRecords.h"
#include "services/CodePage.h"

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

struct Rule {
    bool (*Breaks)(std::string_view name);
    const char* Words;
};

// What a name does not bear alone, as "AUX" or "St.", it bears within the name of the file.
constexpr std::array<Rule, 2> rules{{
    {IsOfAnotherPage, CharactersRefused},
    {IsTooLong, "The name of the station is longer than 80 characters."},
}};

} // namespace

std::string ReasonAgainst(const std::string& typedName) {
    const auto broken =
        std::ranges::find_if(rules, [&typedName](const Rule& rule) { return rule.Breaks(typedName); });
    return broken == rules.end() ? std::string() : broken->Words;
}

} // namespace gfc::forms
