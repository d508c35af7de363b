#include "suggest/Known.h"

#include "binding/TagsInUse.h"
#include "config/Vocabulary.h"
#include "naming/TagName.h"
#include "services/Text.h"

#include <algorithm>
#include <set>

namespace gfc::suggest {

namespace {

constexpr std::string_view RunPrefix = "Run";

int RunOf(const std::string& location) {
    return location.size() == RunPrefix.size() + 1 && location.starts_with(RunPrefix) ? location.back() - '0'
                                                                                      : 0;
}

// Several rows share a stem where only a caption differs; any of them stands for the variable.
const binding::VariableRow* RowFor(const binding::ExpectedTag& tag) {
    const auto rows = binding::Catalogue();
    const auto is = [&](const binding::VariableRow& row) {
        const bool common = row.Stage == binding::BindingStage::CommonInputs;
        return row.ReportedStem() == tag.Stem && (common || row.CheckGroup() == tag.Group);
    };
    const auto row = std::ranges::find_if(rows, is);
    return row == rows.end() ? nullptr : &*row;
}

std::string Text(const config::TagBinding& binding) {
    return naming::Fold(binding.Type) + " " + binding.RegAddr;
}

} // namespace

std::vector<BoundVariable> BoundInFile(const config::FileIni& ini, const std::string& file) {
    std::vector<BoundVariable> bound;
    if (!ini.FileExists(file))
        return bound;
    const binding::ExpectedTags tags = binding::TagsInUse(ini, file);
    for (const auto* list :
         {&tags.ExpectedFloat, &tags.ExpectedAnalog, &tags.ExpectedLong, &tags.ExpectedDigital})
        for (const binding::ExpectedTag& tag : *list)
            if (const auto* row = RowFor(tag); row != nullptr && !tag.RegAddr.empty())
                bound.push_back({{RunOf(tag.Location), row}, {tag.Tag, tag.Type, tag.RegAddr}});
    return bound;
}

std::vector<BoundVariable> BoundInRecords(const config::StationConfig& station, int element, int run) {
    std::vector<BoundVariable> bound;
    for (const Want& want : VariablesOfRun(run, binding::ConditionsOf(station, element)))
        if (const auto* binding = binding::BindingOf(*want.Row, station, element);
            binding != nullptr && binding->IsMade())
            bound.push_back({want, *binding});
    return bound;
}

std::vector<OtherStation> OtherStationsOf(const config::FileIni& ini, const project::Project& project,
                                          std::string_view station) {
    std::vector<OtherStation> others;
    for (const project::Station& other : project.Stations) {
        const std::string name = other.Name;
        if (services::EqualNoCase(name, station))
            continue;
        auto bound = BoundInFile(ini, project.ConfigFileOf(name));
        if (!bound.empty())
            others.push_back({name, std::move(bound)});
    }
    return others;
}

std::vector<int> RunsInFile(const config::FileIni& ini, const std::string& file) {
    std::vector<int> runs;
    for (int run = 1; run <= config::MaxRuns; ++run)
        if (services::EqualNoCase(ini.ReadKey("FlowRuns", "Run" + std::to_string(run), file), config::Yes))
            runs.push_back(run);
    return runs;
}

std::string PlaceOf(std::string_view station, const Want& variable) {
    const std::string run = variable.Run == 0 ? std::string() : "run " + std::to_string(variable.Run) + ", ";
    return std::string(station) + ": " + run + std::string(variable.Row->Captions.Tree);
}

std::vector<std::string> WhereUsed(const config::TagBinding& tag, std::string_view station,
                                   const std::vector<BoundVariable>& own,
                                   const std::vector<OtherStation>& others) {
    std::vector<std::string> places;
    const auto add = [&](std::string_view where, const Want& variable) {
        std::string place = PlaceOf(where, variable);
        if (std::ranges::find(places, place) == places.end())
            places.push_back(std::move(place));
    };
    for (const BoundVariable& bound : own)
        if (Text(bound.Binding) == Text(tag))
            add(station, bound.Variable);
    for (const OtherStation& other : others)
        for (const BoundVariable& bound : other.Bound)
            if (Text(bound.Binding) == Text(tag) && services::EqualNoCase(bound.Binding.Tag, tag.Tag))
                add(other.Name, bound.Variable);
    return places;
}

} // namespace gfc::suggest
