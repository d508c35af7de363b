#include "binding/SummaryCommon.h"

#include "binding/SummaryValues.h"
#include "config/Vocabulary.h"
#include "services/Utilidades.h"

#include <algorithm>

namespace gfc::binding {

namespace {

using config::Quantity;
using config::StationConfig;
using Station = const StationConfig&;

constexpr auto Temperature = Quantity::Temperature;
constexpr auto Pressure = Quantity::AbsolutePressure;

std::string StationName(Station station) {
    // Cut at the first NUL; its blanks are part of it, as in the tree and in the file's name.
    return OrNotConfigured(services::TrimFixedString(station.CurrentStation));
}

std::string Viscosity(Station station) {
    if (!HasFlowingProperties(station))
        return std::string(NotApplicableHere);
    const std::string text = OrNotConfigured(station.FlowingViscosity);
    if (station.FlowingViscosity.empty())
        return text;
    return text + " " + std::string(config::DefaultsOf(station.SystemUnits).ViscosityCaption);
}

std::string Isentropic(Station station) {
    return HasFlowingProperties(station) ? OrNotConfigured(station.IsentropicCoeff)
                                         : std::string(NotApplicableHere);
}

bool HasTraces(Station station) {
    return IsYes(station.EnableDataTraces);
}

bool HasPressureTag(Station station) {
    return station.PressType == config::Gage && IsYes(station.ExtAtmPress);
}

std::string AtmosphericPressure(Station station) {
    if (station.PressType == config::Absolute)
        return std::string(NotApplicable);
    if (HasPressureTag(station))
        return std::string(ExternalIO);
    return ValueWithUnit(station, station.AtmPress, Pressure);
}

template <std::string config::TagBinding::*Field>
std::string OfPressureTag(Station station) {
    return OrNotConfigured(station.CommonPa.*Field);
}

// clang-format off
const ParameterRow CommonRows[] = {
    {"1",   "Project Name",           Plain<&StationConfig::ProjectName>},
    {"2",   "Orm Station",            StationName},
    {"3",   "Algorithm",              Plain<&StationConfig::FlowAlgorithm>},
    {"4",   "Units",                  Plain<&StationConfig::SystemUnits>},
    {"5",   "Gas Density Source",     Plain<&StationConfig::GasDensitySource>},
    {"6",   "Enable Data Traces",     Plain<&StationConfig::EnableDataTraces>},
    {"6.1", "Trace Device",           Plain<&StationConfig::DeviceDataTraces>, HasTraces},
    {"6.2", "Number of Traces",       Plain<&StationConfig::NumberTraces>, HasTraces},
    {"7",   "Standard Temperature",   WithUnit<&StationConfig::StandardT, Temperature>},
    {"8",   "Standard Pressure",      WithUnit<&StationConfig::StandardP, Pressure>},
    {"9",   "Fluid Compressible?",    Plain<&StationConfig::Compressible>},
    {"10",  "Flowing Viscosity",      Viscosity},
    {"11",  "Isentropic Coefficient", Isentropic},
    {"12",  "Pressure Type",          Plain<&StationConfig::PressType>},
    {"13",  "Atmospheric Pressure",   AtmosphericPressure},
    {"14",  "Atmospheric Pressure Tag Name",    OfPressureTag<&config::TagBinding::Tag>, HasPressureTag},
    {"15",  "Atmospheric Pressure Tag Type",    OfPressureTag<&config::TagBinding::Type>, HasPressureTag},
    {"16",  "Atmospheric Pressure Tag Address", OfPressureTag<&config::TagBinding::RegAddr>, HasPressureTag},
};

const ParameterRow DensityRows[] = {
    {"1", "Gas Density Source",     Plain<&StationConfig::GasDensitySource>},
    {"2", "Gas Composition Source", Plain<&StationConfig::AGA8CalInput>},
    {"3", "Standard Temperature",   WithUnit<&StationConfig::GasDensityStandardT, Temperature>},
    {"4", "Standard Pressure",      WithUnit<&StationConfig::GasDensityStandardP, Pressure>},
};

// The rows of each enabled run; the run stands in the caption.
struct RunRow {
    std::string_view Caption, BehindRun;
    std::string EnabledRun::*Value;
    std::optional<Quantity> Unit;
    ValueTest IsThere;
};

bool Always(Station) { return true; }
bool IsAGA7(Station station) { return station.FlowAlgorithm == config::algorithm::AGA7; }

const RunRow RunRows[] = {
    {"Calibration Factor", "", &EnabledRun::CalibrationFactor, std::nullopt, Always},
    {"Contract Time", "(Local 24-hr)", &EnabledRun::ContractTime, std::nullopt, Always},
    {"Meter K-Factor", "", &EnabledRun::meterKFactor, Quantity::MeterFactor, IsAGA7},
    {"Density @ Std. Cond.", "", &EnabledRun::GasDensityStandard, Quantity::Density, IsMeasured},
};

struct ModuleRow {
    std::string_view Type;
    std::string config::WorkingModules::*Name;
    std::string config::WorkingModules::*Address;
    std::string config::WorkingModules::*RegType;
};

using Modules = config::WorkingModules;
const ModuleRow ModuleRows[] = {
    {"Virtual AI", &Modules::WrkAnalogModName,  &Modules::WrkAnalogRegAddr,  &Modules::WrkAnalogRegType},
    {"Virtual LI", &Modules::WrkIntLongModName, &Modules::WrkIntLongRegAddr, &Modules::WrkIntLongRegType},
    {"Virtual FI", &Modules::WrkFloatModName,   &Modules::WrkFloatRegAddr,   &Modules::WrkFloatRegType},
};
// clang-format on

std::string CaptionOf(const RunRow& row, int run) {
    return std::string(row.Caption) + " (Run" + std::to_string(run) + ")" + std::string(row.BehindRun);
}

// The whole numbers go on behind those of the table; the sub-rows have none.
int NextNumber(const SummaryPage& page) {
    const auto isMain = [](const SummaryPage::Row& row) {
        return row.front().find('.') == std::string::npos;
    };
    return static_cast<int>(std::count_if(page.Rows.begin(), page.Rows.end(), isMain)) + 1;
}

} // namespace

SummaryPage CommonParametersPage(Station station, std::span<const EnabledRun> runs) {
    SummaryPage page = ParameterPage(CommonRows, station, "Data");
    int number = NextNumber(page);
    for (const EnabledRun& run : runs)
        for (const RunRow& row : RunRows)
            if (row.IsThere(station))
                page.Rows.push_back({std::to_string(number++), CaptionOf(row, run.Run),
                                     ValueWithUnit(station, run.*row.Value, row.Unit)});
    return page;
}

SummaryPage WorkingModulesPage(Station station) {
    SummaryPage page;
    page.List = SummaryList::Parameters;
    page.Columns = {std::string(NumberHeading), "Module Type", "Module Name", "Address", "Type"};
    const auto& modules = station.WorkingModules;
    for (const ModuleRow& row : ModuleRows)
        page.Rows.push_back({std::to_string(page.Rows.size() + 1), std::string(row.Type),
                             OrNotConfigured(modules.*row.Name), OrNotConfigured(modules.*row.Address),
                             OrNotConfigured(modules.*row.RegType)});
    return page;
}

SummaryPage GasDensityPage(Station station) {
    if (IsMeasured(station))
        return LinePage("Measuring with external density meter");
    return ParameterPage(DensityRows, station);
}

} // namespace gfc::binding
