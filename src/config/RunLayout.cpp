#include "config/RunLayout.h"

#include "config/Overload.h"
#include "config/Vocabulary.h"
#include "services/Text.h"

#include <algorithm>
#include <array>

namespace gfc::config {
namespace {

using services::EqualNoCase;

// The keys that are spelt differently. All meet in one file and are one key, since case does not count there.
struct OddKey {
    std::string_view Usual;
    std::string_view FullWrite;
    std::string_view Read;
    std::string_view Update;
};

// clang-format off
constexpr std::array<OddKey, 6> OddKeys = {{
    // Usual                 FullWrite               Read                    Update
    {"StdVolFlowKDIOTag",   "StdVolFlowKDIOtag",    "StdVolFlowKDIOTag",    "StdVolFlowKDIOTag"},
    {"StdVolFlowKDIOType",  "StdVolFlowKDIOtype",   "StdVolFlowKDIOType",   "StdVolFlowKDIOType"},
    {"AGA8zKDIOTag",        "AGA8zKDIOTag",         "AGA8zKDIOTAg",         "AGA8zKDIOTAg"},
    {"AGA8GRsKDIOTag",      "AGA8GRsKDIOTag",       "AGA8GrsKDIOTag",       "AGA8GRsKDIOTag"},
    {"AGA8GRsKDIOType",     "AGA8GRsKDIOType",      "AGA8GrsKDIOType",      "AGA8GRsKDIOType"},
    {"AGA8GRsKDIORegAddr",  "AGA8GRsKDIORegAddr",   "AGA8GrsKDIORegAddr",   "AGA8GRsKDIORegAddr"},
}};
// clang-format on

std::string UsualKey(const RunRow& row, BindingPart part) {
    std::string key(row.Name);
    if (!IsBinding(row))
        return key;
    switch (part) {
    case BindingPart::Tag:
        return key.append("KDIOTag");
    case BindingPart::Type:
        return key.append("KDIOType");
    case BindingPart::RegAddr:
        break;
    }
    return key.append(row.AddressSuffix);
}

std::string TagBinding::*MemberOf(BindingPart part) {
    switch (part) {
    case BindingPart::Tag:
        return &TagBinding::Tag;
    case BindingPart::Type:
        return &TagBinding::Type;
    case BindingPart::RegAddr:
        break;
    }
    return &TagBinding::RegAddr;
}

// What the presence of a group is decided by.
struct Choices {
    std::string_view Algorithm;
    std::string_view Source;
    bool CompositionMeasured;
    bool ExtAtmPress;
    bool ExtMechParam;

    [[nodiscard]] bool GasModel() const { return IsGasModel(Source); }
    [[nodiscard]] bool Detail() const { return IsDetail(Source); }
};

struct Rule {
    char Group;
    bool (*Present)(const Choices&);
};

bool Always(const Choices&) {
    return true;
}

bool IsPlainOrifice(const Choices& c) {
    return c.Algorithm == algorithm::AGA3 || c.Algorithm == algorithm::SYT6143;
}

// clang-format off
constexpr std::array<Rule, 21> Rules = {{
    {'A', Always},
    {'B', [](const Choices& c) { return c.Algorithm != algorithm::AGA7; }},
    {'C', [](const Choices& c) { return c.Algorithm == algorithm::Accelabar; }},
    {'D', IsPlainOrifice},
    {'E', Always},
    {'F', Always},
    {'G', [](const Choices& c) { return c.Source == source::Measured; }},
    {'H', [](const Choices& c) { return c.Algorithm != algorithm::AGA7 || c.GasModel(); }},
    {'I', [](const Choices& c) { return c.ExtAtmPress; }},
    {'J', [](const Choices& c) { return IsOrificeAlgorithm(c.Algorithm); }},
    {'K', [](const Choices& c) { return c.Algorithm == algorithm::AGA7; }},
    {'L', [](const Choices& c) { return c.ExtMechParam; }}, // a stale "Yes" counts under any algorithm
    {'M', [](const Choices& c) { return c.Algorithm == algorithm::SYT6143; }},
    {'N', Always},
    {'O', Always},
    {'P', [](const Choices& c) { return c.GasModel() && c.CompositionMeasured; }},
    {'Q', [](const Choices& c) { return c.GasModel() && c.CompositionMeasured && !c.Detail(); }},
    {'R', [](const Choices& c) { return c.GasModel() && c.CompositionMeasured && c.Detail(); }},
    {'S', [](const Choices& c) { return c.GasModel() && !c.CompositionMeasured && !c.Detail(); }},
    {'T', [](const Choices& c) { return c.GasModel() && !c.CompositionMeasured && c.Detail(); }},
    {'U', [](const Choices& c) { return c.GasModel(); }},
}};
// clang-format on

} // namespace

const RunRow& RunRowOf(char group, std::string_view name) {
    return *std::ranges::find_if(RunRows(),
                                 [&](const RunRow& row) { return row.Group == group && row.Name == name; });
}

bool IsBinding(const RunRow& row) {
    return std::holds_alternative<TagBinding RunIO::*>(row.Field) ||
           std::holds_alternative<SharedBinding>(row.Field) || std::holds_alternative<GasBinding>(row.Field);
}

std::string KeyOf(const RunRow& row, BindingPart part, KeyUse use) {
    std::string key = UsualKey(row, part);
    const auto odd = std::ranges::find(OddKeys, key, &OddKey::Usual);
    if (odd == OddKeys.end())
        return key;
    const auto form = use == KeyUse::FullWrite ? odd->FullWrite
                      : use == KeyUse::Read    ? odd->Read
                                               : odd->Update;
    return std::string(form);
}

void ForEachPart(const RunRow& row, const std::function<void(BindingPart)>& visit) {
    visit(BindingPart::Tag);
    if (!IsBinding(row))
        return;
    visit(BindingPart::Type);
    visit(BindingPart::RegAddr);
}

bool GroupPresent(char group, const StationConfig& station, const RunMechanical& mechanical) {
    const Choices choices{station.FlowAlgorithm, station.GasDensitySource,
                          station.AGA8CalInput == CompositionMeasured, EqualNoCase(station.ExtAtmPress, Yes),
                          EqualNoCase(mechanical.ExtMechParam, Yes)};
    const auto rule = std::ranges::find(Rules, group, &Rule::Group);
    return rule != Rules.end() && rule->Present(choices);
}

const std::string& TextOf(const RunRow& row, BindingPart part, const RunSource& from) {
    return *std::visit(Overload{
                           [&](CommonCopy field) { return &(from.Common.*field.Value); },
                           [&](std::string RunMechanical::*field) { return &(from.Mechanical.*field); },
                           [&](std::string RunIO::*field) { return &(from.IO.*field); },
                           [&](TagBinding RunIO::*field) { return &PartOf(from.IO.*field, part); },
                           // Deliberately the common binding, whatever the run's own holds.
                           [&](SharedBinding field) { return &PartOf(from.Common.*field.Common, part); },
                           [&](GasBinding field) { return &PartOf(from.Gas[field.Slot], part); },
                           [&](GasValue field) { return &from.Gas[field.Slot].Tag; },
                       },
                       row.Field);
}

const std::string& PartOf(const TagBinding& binding, BindingPart part) {
    return binding.*MemberOf(part);
}

std::string& PartOf(TagBinding& binding, BindingPart part) {
    return binding.*MemberOf(part);
}

std::string RunSection(int runNumber) {
    return "Run" + std::to_string(runNumber);
}

} // namespace gfc::config
