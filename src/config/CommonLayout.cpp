#include "config/CommonLayout.h"

#include "config/Vocabulary.h"

#include <array>

namespace gfc::config {
namespace {

// Deliberate: the base conditions stand in two sections and the writers take both from StandardT and
// StandardP; a full write calls the gas compressible, whatever the model says; the doubled run keys, which
// say that a run was configured, are asked for one by one where they matter.
// clang-format off
constexpr std::array<CommonRow, 44> Rows = {{
    {CommonSection::General,  "Package",               Literal{"kdormaga"},                 NotRead{}},
    {CommonSection::General,  "Project",               &StationConfig::ProjectFile,         NotRead{}},
    {CommonSection::General,  "OrmStation",            &StationConfig::CurrentStation,      NotRead{}},
    {CommonSection::General,  "UserID",                &StationConfig::UserId,              NotRead{}},

    {CommonSection::Station,  "EnableDataTraces",      &StationConfig::EnableDataTraces,    &StationConfig::EnableDataTraces},
    {CommonSection::Station,  "DeviceDataTraces",      &StationConfig::DeviceDataTraces,    &StationConfig::DeviceDataTraces},
    {CommonSection::Station,  "NumberTraces",          &StationConfig::NumberTraces,        &StationConfig::NumberTraces},

    {CommonSection::FlowRuns, "Run1",                  FlagInRunList{0},                    FlagInRun{0}},
    {CommonSection::FlowRuns, "Run2",                  FlagInRunList{1},                    FlagInRun{1}},
    {CommonSection::FlowRuns, "Run3",                  FlagInRunList{2},                    FlagInRun{2}},
    {CommonSection::FlowRuns, "Run4",                  FlagInRunList{3},                    FlagInRun{3}},
    {CommonSection::FlowRuns, "Run5",                  FlagInRunList{4},                    FlagInRun{4}},
    {CommonSection::FlowRuns, "FlowAlgorithm",         &StationConfig::FlowAlgorithm,       &StationConfig::FlowAlgorithm},
    {CommonSection::FlowRuns, "GasDensitySource",      &StationConfig::GasDensitySource,    &StationConfig::GasDensitySource},
    {CommonSection::FlowRuns, "GasDensityStandardT",   &StationConfig::StandardT,           &StationConfig::GasDensityStandardT},
    {CommonSection::FlowRuns, "GasDensityStandardP",   &StationConfig::StandardP,           &StationConfig::GasDensityStandardP},
    {CommonSection::FlowRuns, "SystemUnits",           &StationConfig::SystemUnits,         &StationConfig::SystemUnits},
    {CommonSection::FlowRuns, "WrkFloatModName",       &WorkingModules::WrkFloatModName,    &WorkingModules::WrkFloatModName},
    {CommonSection::FlowRuns, "WrkFloatRegAddr",       &WorkingModules::WrkFloatRegAddr,    &WorkingModules::WrkFloatRegAddr},
    {CommonSection::FlowRuns, "WrkFloatRegType",       &WorkingModules::WrkFloatRegType,    &WorkingModules::WrkFloatRegType},
    {CommonSection::FlowRuns, "WrkIntLongModName",     &WorkingModules::WrkIntLongModName,  &WorkingModules::WrkIntLongModName},
    {CommonSection::FlowRuns, "WrkIntLongRegAddr",     &WorkingModules::WrkIntLongRegAddr,  &WorkingModules::WrkIntLongRegAddr},
    {CommonSection::FlowRuns, "WrkIntLongRegType",     &WorkingModules::WrkIntLongRegType,  &WorkingModules::WrkIntLongRegType},
    {CommonSection::FlowRuns, "WrkAnalogModName",      &WorkingModules::WrkAnalogModName,   &WorkingModules::WrkAnalogModName},
    {CommonSection::FlowRuns, "WrkAnalogRegAddr",      &WorkingModules::WrkAnalogRegAddr,   &WorkingModules::WrkAnalogRegAddr},
    {CommonSection::FlowRuns, "WrkAnalogRegType",      &WorkingModules::WrkAnalogRegType,   &WorkingModules::WrkAnalogRegType},
    {CommonSection::FlowRuns, "Run11",                 FlagInRunList{0},                    NotRead{}},
    {CommonSection::FlowRuns, "Run22",                 FlagInRunList{1},                    NotRead{}},
    {CommonSection::FlowRuns, "Run33",                 FlagInRunList{2},                    NotRead{}},
    {CommonSection::FlowRuns, "Run44",                 FlagInRunList{3},                    NotRead{}},
    {CommonSection::FlowRuns, "Run55",                 FlagInRunList{4},                    NotRead{}},

    {CommonSection::Flow,     "StandardT",             &StationConfig::StandardT,           &StationConfig::StandardT},
    {CommonSection::Flow,     "StandardP",             &StationConfig::StandardP,           &StationConfig::StandardP},
    {CommonSection::Flow,     "FlowingViscosity",      &StationConfig::FlowingViscosity,    &StationConfig::FlowingViscosity},
    {CommonSection::Flow,     "IsentropicCoeff",       &StationConfig::IsentropicCoeff,     &StationConfig::IsentropicCoeff},
    {CommonSection::Flow,     "Compressible",          Literal{Yes},                        &StationConfig::Compressible},
    {CommonSection::Flow,     "PressType",             &StationConfig::PressType,           &StationConfig::PressType},
    {CommonSection::Flow,     "ExtAtmPress",           &StationConfig::ExtAtmPress,         &StationConfig::ExtAtmPress},
    {CommonSection::Flow,     "AtmPress",              &StationConfig::AtmPress,            &StationConfig::AtmPress},
    {CommonSection::Flow,     "CommonPaKDIORegAddr",   BindingPart::RegAddr,                BindingPart::RegAddr},
    {CommonSection::Flow,     "CommonPaKDIOTag",       BindingPart::Tag,                    BindingPart::Tag},
    {CommonSection::Flow,     "CommonPaKDIOType",      BindingPart::Type,                   BindingPart::Type},

    {CommonSection::Gas,      "AGA8Method",            &StationConfig::AGA8Method,          &StationConfig::AGA8Method},
    {CommonSection::Gas,      "AGA8CalInput",          &StationConfig::AGA8CalInput,        &StationConfig::AGA8CalInput},
}};
// clang-format on

constexpr std::string_view OrificeSection = "AGA3";
constexpr std::string_view PulseSection = "AGA7";

template <class... Fs>
struct Overload : Fs... {
    using Fs::operator()...;
};
template <class... Fs>
Overload(Fs...) -> Overload<Fs...>;

} // namespace

std::span<const CommonRow> CommonRows() {
    return Rows;
}

std::string CommonTextOf(const CommonField& field, const StationConfig& station) {
    return std::visit(Overload{
                          [](Literal literal) { return std::string(literal.Text); },
                          [](NotRead) { return std::string(); },
                          [&](std::string StationConfig::*text) { return station.*text; },
                          [&](std::string WorkingModules::*text) { return station.WorkingModules.*text; },
                          [&](BindingPart part) { return PartOf(station.CommonPa, part); },
                          [&](FlagInRunList flag) { return station.RunList[flag.Run].Flag; },
                          [&](FlagInRun flag) { return station.Run[flag.Run]; },
                      },
                      field);
}

std::string* CommonPlaceOf(const CommonField& field, StationConfig& station) {
    using Place = std::string*;
    return std::visit(Overload{
                          [](Literal) { return Place(); },
                          [](NotRead) { return Place(); },
                          [&](std::string StationConfig::*text) { return &(station.*text); },
                          [&](std::string WorkingModules::*text) { return &(station.WorkingModules.*text); },
                          [&](BindingPart part) { return &PartOf(station.CommonPa, part); },
                          [&](FlagInRunList flag) { return &station.RunList[flag.Run].Flag; },
                          [&](FlagInRun flag) { return &station.Run[flag.Run]; },
                      },
                      field);
}

std::string FlowSectionToWrite(const StationConfig& station) {
    return std::string(station.FlagAGA7 ? PulseSection : OrificeSection);
}

std::string FlowSectionToRead(const StationConfig& station) {
    return std::string(IsOrificeAlgorithm(station.FlowAlgorithm) ? OrificeSection : PulseSection);
}

std::string GasSection(const StationConfig& station) {
    return IsDetail(station.GasDensitySource) ? "AGA8" : "SGERG88";
}

std::string SectionToWrite(CommonSection section, const StationConfig& station) {
    switch (section) {
    case CommonSection::General:
        return "General";
    case CommonSection::Station:
        return "Station";
    case CommonSection::FlowRuns:
        return "FlowRuns";
    case CommonSection::Flow:
        return FlowSectionToWrite(station);
    case CommonSection::Gas:
        break;
    }
    return GasSection(station);
}

} // namespace gfc::config
