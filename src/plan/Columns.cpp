#include "plan/Columns.h"

#include "config/Vocabulary.h"
#include "services/Text.h"

#include <algorithm>
#include <array>
#include <set>
#include <unordered_map>

namespace gfc::plan {

namespace {

using config::BindingPart;
using config::CommonRow;
using config::RunRow;
using config::StationConfig;
using services::EqualNoCase;

// What a person would rather write than the key.
constexpr std::array<std::pair<std::string_view, std::string_view>, 5> Titles = {{
    {"UserID", "User"},
    {"FlowAlgorithm", "Standard"},
    {"GasDensitySource", "Source"},
    {"SystemUnits", "Units"},
    {"AGA8CalInput", "Composition"},
}};

// What is not said in a plan: the station and the project say it themselves, and the method has one word.
constexpr std::array<std::string StationConfig::*, 3> NotSaid = {
    &StationConfig::ProjectFile, &StationConfig::CurrentStation, &StationConfig::AGA8Method};

std::string TitleOf(std::string_view key) {
    const auto found = std::ranges::find(Titles, key, &std::pair<std::string_view, std::string_view>::first);
    return std::string(found == Titles.end() ? key : found->second);
}

class Maker {
public:
    std::vector<Column> Make() {
        Add({"Station", ColumnKind::Station, "Station"});
        Add({"Runs", ColumnKind::Runs, "Runs"});
        for (const CommonRow& row : config::CommonRows())
            AddCommon(row);
        for (const RunRow& row : config::RunRows())
            AddRun(row);
        Add({"Tags", ColumnKind::Tags, "Tags"});
        for (const CommonRow& row : config::CommonRows())
            if (const auto* part = std::get_if<BindingPart>(&row.Written);
                part != nullptr && *part == BindingPart::Tag)
                Add({std::string(row.Key), ColumnKind::CommonTag, std::string(row.Key), &row});
        for (const RunRow& row : config::RunRows())
            AddTag(row);
        return std::move(columns_);
    }

private:
    void Add(Column column) { columns_.push_back(std::move(column)); }

    // Some texts stand in several places of the file, and are said once.
    bool IsNew(std::string StationConfig::*text) {
        if (std::ranges::find(NotSaid, text) != NotSaid.end() ||
            std::ranges::find(said_, text) != said_.end())
            return false;
        said_.push_back(text);
        return true;
    }

    void AddCommon(const CommonRow& row) {
        const auto* text = std::get_if<std::string StationConfig::*>(&row.Read);
        if (text == nullptr || row.Written.index() != row.Read.index())
            text = std::get_if<std::string StationConfig::*>(&row.Written);
        const bool module = std::holds_alternative<std::string config::WorkingModules::*>(row.Written) &&
                            row.Key.ends_with("ModName");
        if (!module && (text == nullptr || row.Key.starts_with("GasDensityStandard") || !IsNew(*text)))
            return;
        Add({TitleOf(row.Key), ColumnKind::Common, std::string(row.Key), &row});
    }

    void AddRun(const RunRow& row) {
        if (const auto* copy = std::get_if<config::CommonCopy>(&row.Field)) {
            // Only what has no place of its own among the common sections.
            if (IsNew(copy->Value))
                Add({std::string(row.Name), ColumnKind::Common, std::string(row.Name), nullptr, &row});
            return;
        }
        if (!config::IsBinding(row))
            Add({std::string(row.Name), ColumnKind::Run, std::string(row.Name), nullptr, &row});
    }

    void AddTag(const RunRow& row) {
        if (!config::IsBinding(row) || std::holds_alternative<config::SharedBinding>(row.Field))
            return;
        const std::string title = std::string(row.Name) + "KDIOTag";
        Add({title, ColumnKind::RunTag, title, nullptr, &row});
    }

    std::vector<Column> columns_;
    std::vector<std::string StationConfig::*> said_;
};

struct Words {
    std::string_view Stored;
    std::string_view Shown;
    std::string_view ShownToo;
};

std::vector<Words> WordsOf(std::string_view key) {
    std::vector<Words> words;
    const auto add = [&](const auto& choices) {
        for (const config::Choice& choice : choices)
            words.push_back({choice.Stored, choice.InWizard, choice.InConfigurador});
    };
    if (key == "FlowAlgorithm")
        add(config::FlowAlgorithms);
    if (key == "GasDensitySource")
        add(config::GasDensitySources);
    if (key == "SystemUnits")
        add(config::UnitSystems);
    if (key == "AGA8CalInput")
        words = {{config::CompositionMeasured, {}, {}}, {config::CompositionFixed, {}, {}}};
    return words;
}

// The stem of a binding's three keys: they all lead to the column of its tag.
std::string_view StemOf(std::string_view key) {
    const auto at = services::FoldCase(key).find("kdio");
    return at == std::string::npos ? std::string_view() : key.substr(0, at);
}

} // namespace

std::span<const Column> Columns() {
    static const std::vector<Column> columns = Maker().Make();
    return columns;
}

const Column* ColumnOf(std::string_view title) {
    // Asked some hundred times for each station.
    static const auto places = [] {
        std::unordered_map<std::string, const Column*> of;
        for (const Column& column : Columns())
            for (const std::string& name : {column.Title, column.Key})
                of.emplace(services::FoldCase(name), &column);
        return of;
    }();
    const auto found = places.find(services::FoldCase(title));
    return found == places.end() ? nullptr : found->second;
}

const Column* ColumnOfKey(std::string_view key, bool ofRun) {
    const std::string_view stem = StemOf(key);
    const auto found = std::ranges::find_if(Columns(), [&](const Column& column) {
        const bool isTag = column.Kind == ColumnKind::RunTag || column.Kind == ColumnKind::CommonTag;
        if (isTag)
            return !stem.empty() && EqualNoCase(StemOf(column.Key), stem);
        return EqualNoCase(column.Key, key) && (ofRun || column.Kind != ColumnKind::Run);
    });
    return found == Columns().end() ? nullptr : &*found;
}

std::string_view StoredChoice(std::string_view key, std::string_view said) {
    for (const Words& words : WordsOf(key))
        if (EqualNoCase(words.Stored, said) || EqualNoCase(words.ShownToo, said) ||
            // One entry ends in a blank.
            EqualNoCase(words.Shown.substr(0, words.Shown.find_last_not_of(' ') + 1), said))
            return words.Stored;
    return {};
}

std::string ChoicesOf(std::string_view key) {
    std::string text;
    for (const Words& words : WordsOf(key))
        text.append(text.empty() ? "" : ", ").append(words.Stored);
    return text;
}

} // namespace gfc::plan
