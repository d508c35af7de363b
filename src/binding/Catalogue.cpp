#include "binding/Catalogue.h"

#include "config/Vocabulary.h"
#include "services/Text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace gfc::binding {

namespace {

template <class Keep>
std::vector<const VariableRow*> RowsWhere(Keep keep) {
    std::vector<const VariableRow*> rows;
    for (const VariableRow& row : Catalogue())
        if (keep(row))
            rows.push_back(&row);
    return rows;
}

template <class Records>
auto* At(Records& records, int element) {
    const bool there = element >= 0 && static_cast<std::size_t>(element) < records.size();
    return there ? &records[static_cast<std::size_t>(element)] : nullptr;
}

// Binding is TagBinding, const or not as the station is.
template <class Binding, class Station>
Binding* FindBinding(const VariableRow& row, Station& station, int element) {
    if (const auto* common = std::get_if<config::TagBinding config::StationConfig::*>(&row.Where))
        return &(station.**common);
    if (const auto* slot = std::get_if<config::GasSlot>(&row.Where)) {
        auto* gas = At(station.Runs.Gas, element);
        return gas == nullptr ? nullptr : &(*gas)[*slot];
    }
    auto* io = At(station.Runs.IO, element);
    return io == nullptr ? nullptr : &(io->*std::get<config::TagBinding config::RunIO::*>(row.Where));
}

// The texts that change with the standard, and those that change with the density source.
struct ByStandard {
    std::string_view AGA3, AGA7, SYT;
};

std::string_view Choose(const ByStandard& texts, std::string_view flowAlgorithm) {
    if (flowAlgorithm == config::algorithm::SYT6143)
        return texts.SYT;
    return flowAlgorithm == config::algorithm::AGA7 ? texts.AGA7 : texts.AGA3;
}

} // namespace

std::optional<TagClass> ClassOf(std::string_view tagType) {
    static constexpr std::pair<std::string_view, TagClass> types[] = {
        {"FX", TagClass::Float},  {"FY", TagClass::Float},  {"LX", TagClass::Long},
        {"LY", TagClass::Long},   {"AX", TagClass::Analog}, {"AY", TagClass::Analog},
        {"X", TagClass::Digital}, {"Y", TagClass::Digital},
    };
    for (const auto& [type, tagClass] : types)
        if (services::EqualNoCase(type, tagType))
            return tagClass;
    return std::nullopt;
}

std::string_view ListHeading(TagClass tagClass) {
    static constexpr std::string_view headings[] = {"Nº (Float)", "Nº (Long)", "Nº (Analog)", "Nº (Digital)"};
    return headings[static_cast<std::size_t>(tagClass)];
}

Conditions ConditionsOf(const config::StationConfig& station, int element) {
    const auto* mechanical = At(station.Runs.Mechanical, element);
    Conditions conditions;
    conditions.FlowAlgorithm = station.FlowAlgorithm;
    conditions.GasDensitySource = station.GasDensitySource;
    conditions.Measured = station.Measured;
    conditions.CompositionMeasured = station.AGA8CalInput == config::CompositionMeasured;
    conditions.ExtAtmPress = services::EqualNoCase(station.ExtAtmPress, config::Yes);
    conditions.ExtMech =
        mechanical != nullptr && services::EqualNoCase(mechanical->ExtMechParam, config::Yes);
    return conditions;
}

std::string VariableRow::AddressKey() const {
    const bool shortForm = Stage == BindingStage::GasInputs && Class == TagClass::Float;
    return std::string(Stem) + (shortForm ? "Addr" : "RegAddr");
}

std::vector<const VariableRow*> TreeRows(BindingStage stage, const Conditions& conditions) {
    return RowsWhere(
        [&](const VariableRow& row) { return row.Stage == stage && row.Presence.InTree(conditions); });
}

std::vector<const VariableRow*> CheckRows(const Conditions& conditions) {
    auto rows = RowsWhere([&](const VariableRow& row) {
        return row.Stage != BindingStage::CommonInputs && row.Presence.InCheck(conditions);
    });
    std::stable_sort(rows.begin(), rows.end(), [](const VariableRow* left, const VariableRow* right) {
        return left->CheckPlace < right->CheckPlace;
    });
    return rows;
}

const VariableRow& CommonPressureRow() {
    const auto table = Catalogue();
    return *std::find_if(table.begin(), table.end(),
                         [](const VariableRow& row) { return row.Stage == BindingStage::CommonInputs; });
}

std::vector<const VariableRow*> SummaryRows(BindingStage stage, const Conditions& conditions) {
    return RowsWhere([&](const VariableRow& row) {
        const bool common = stage == BindingStage::RunInputs && row.Stage == BindingStage::CommonInputs;
        return (row.Stage == stage || common) && row.Presence.InSummary(conditions);
    });
}

std::string SummaryCaption(const VariableRow& row, const config::StationConfig& station) {
    std::string caption(row.Captions.Summary);
    if (row.Unit)
        caption.append(" (")
            .append(config::UnitCaption(*row.Unit, station.SystemUnits, station.FlowAlgorithm))
            .append(")");
    return caption;
}

config::TagBinding* BindingOf(const VariableRow& row, config::StationConfig& station, int element) {
    return FindBinding<config::TagBinding>(row, station, element);
}

const config::TagBinding* BindingOf(const VariableRow& row, const config::StationConfig& station,
                                    int element) {
    return FindBinding<const config::TagBinding>(row, station, element);
}

std::vector<Variable> VariablesOf(BindingStage stage, config::StationConfig& station, int element) {
    std::vector<Variable> variables;
    for (const VariableRow* row : TreeRows(stage, ConditionsOf(station, element)))
        if (auto* binding = BindingOf(*row, station, element))
            variables.push_back({row, binding});
    return variables;
}

std::string_view RootCaption(BindingStage stage, const config::StationConfig& station) {
    const bool detail = config::IsDetail(station.GasDensitySource);
    switch (stage) {
    case BindingStage::RunInputs:
        return Choose({"AGA 3 Inputs", "AGA 7 Inputs", "SYT6143-2004 Inputs"}, station.FlowAlgorithm);
    case BindingStage::RunOutputs:
        return Choose({"AGA 3 Outputs", "AGA 7 Outputs", "SYT6143-2004 Outputs"}, station.FlowAlgorithm);
    case BindingStage::GasOutputs:
        return detail ? "AGA 8 Outputs" : "SGERG 88 Outputs";
    case BindingStage::GasInputs:
        return detail ? "AGA 8 Inputs" : "SGERG 88 Inputs";
    case BindingStage::CommonInputs:
        return "Common Inputs";
    case BindingStage::None:
        break;
    }
    return {};
}

int ContextOfRoot(std::string_view rootText) {
    static constexpr std::pair<std::string_view, int> contexts[] = {
        {"AGA 3 Inputs", 6000},         {"SYT6143-2004 Inputs", 6000}, {"AGA 3 Outputs", 6100},
        {"SYT6143-2004 Outputs", 6100}, {"AGA 8 Outputs", 6200},       {"SGERG 88 Outputs", 6200},
        {"AGA 7 Inputs", 7000},         {"AGA 7 Outputs", 7100},       {"AGA 8 Inputs", 5000},
        {"SGERG 88 Inputs", 7600},
    };
    for (const auto& [text, context] : contexts)
        if (text == rootText)
            return context;
    return 0;
}

} // namespace gfc::binding
