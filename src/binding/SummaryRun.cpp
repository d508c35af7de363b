#include "binding/SummaryRun.h"

#include "binding/Catalogue.h"
#include "binding/SummaryValues.h"
#include "config/Vocabulary.h"

namespace gfc::binding {

namespace {

using Station = const config::StationConfig&;

constexpr int loadedRun = 0;

bool IsFixed(Station station) {
    return station.AGA8CalInput == config::CompositionFixed;
}

// By the heading: whatever is not said to be fixed is looked for among the tags.
Conditions SummaryConditions(Station station) {
    Conditions conditions = ConditionsOf(station, loadedRun);
    conditions.Measured = IsMeasured(station);
    conditions.CompositionMeasured = !IsFixed(station);
    conditions.ExtAtmPress = IsYes(station.ExtAtmPress);
    conditions.ExtMech = HasExternalDiameters(station);
    return conditions;
}

SummaryPage::Row TagRow(std::size_t number, const VariableRow& row, Station station) {
    const config::TagBinding* found = BindingOf(row, station, loadedRun);
    const config::TagBinding binding = found == nullptr ? config::TagBinding() : *found;
    return {std::to_string(number), SummaryCaption(row, station),
            binding.IsMade() ? binding.Tag : std::string(NotConfiguredTag), binding.RegAddr, binding.Type};
}

SummaryPage TagPage(BindingStage stage, Station station) {
    SummaryPage page;
    page.List = SummaryList::Tags;
    page.Columns = {std::string(NumberHeading), "Tag Config. As", "Name", "Address", "Type"};
    for (const VariableRow* row : SummaryRows(stage, SummaryConditions(station)))
        page.Rows.push_back(TagRow(page.Rows.size() + 1, *row, station));
    return page;
}

SummaryPage DensimeterLine(const std::string& direction) {
    return LinePage("No AGA 8/SGERG 88/ISO-12213-2-1997/ISO-12213-3-1997 " + direction +
                    " configured. Density source is from external density meter");
}

// The same variables as in the list of tags, but for the enabling input, which has no fixed form.
std::vector<const VariableRow*> FixedRows(Station station) {
    Conditions conditions = SummaryConditions(station);
    conditions.CompositionMeasured = true;
    auto rows = SummaryRows(BindingStage::GasInputs, conditions);
    std::erase_if(rows, [](const VariableRow* row) { return row->Class != TagClass::Float; });
    return rows;
}

// After a load the fixed values stand in GasComposition and not in the run's record.
std::string FixedValue(const VariableRow& row, Station station) {
    return OrNotConfigured(station.GasComposition[std::get<config::GasSlot>(row.Where)].Tag);
}

SummaryPage FixedGasPage(Station station) {
    SummaryPage page;
    page.List = SummaryList::GasValues;
    page.Columns = {std::string(NumberHeading), "Parameters", "Value"};
    const bool detail = config::IsDetail(station.GasDensitySource);
    page.Rows.push_back({"1", detail ? "Fixed Gas composition (Mole fractions)" : "Parameters SGERG-88", ""});
    for (const VariableRow* row : FixedRows(station))
        page.Rows.push_back({"1." + std::to_string(page.Rows.size()), SummaryCaption(*row, station),
                             FixedValue(*row, station)});
    return page;
}

// An algorithm that is none of the four goes with the AGA-3, as in the rows below the heading.
std::string FlowHeading(std::string_view algorithm) {
    if (algorithm == config::algorithm::SYT6143)
        return "SY/T6143";
    return algorithm == config::algorithm::AGA7 ? "AGA-7" : "AGA-3";
}

bool IsGross(Station station) {
    return !IsMeasured(station) && !config::IsDetail(station.GasDensitySource);
}

std::string GasInputsHeading(Station station) {
    if (!IsFixed(station))
        return " Input Tags";
    return IsGross(station) ? " Gas Properties" : " Gas Composition";
}

} // namespace

SummaryPage RunInputsPage(Station station) {
    return TagPage(BindingStage::RunInputs, station);
}

SummaryPage RunOutputsPage(Station station) {
    return TagPage(BindingStage::RunOutputs, station);
}

SummaryPage GasInputsPage(Station station) {
    if (IsMeasured(station))
        return DensimeterLine("inputs");
    return IsFixed(station) ? FixedGasPage(station) : TagPage(BindingStage::GasInputs, station);
}

SummaryPage GasOutputsPage(Station station) {
    if (IsMeasured(station))
        return DensimeterLine("outputs");
    return TagPage(BindingStage::GasOutputs, station);
}

std::array<std::string, 4> RunTabCaptions(Station station) {
    const std::string flow = FlowHeading(station.FlowAlgorithm);
    const std::string gas = IsGross(station) ? "SGERG88/ISO-12213-3" : "AGA8/ISO-12213-2";
    return {flow + " Input Tags", flow + " Output Tags", gas + GasInputsHeading(station),
            gas + " Output Tags"};
}

} // namespace gfc::binding
