#include "config/CommonLayout.h"

#include "config/Overload.h"
#include "config/Vocabulary.h"

#include <array>

namespace gfc::config {
namespace {

using enum CommonSection;
using Config = StationConfig;
using Working = WorkingModules;

// Deliberate: the base conditions stand in two sections and the writers take both from StandardT and
// StandardP; a full write calls the gas compressible, whatever the model says; the doubled run keys, which
// say that a run was configured, are asked for one by one where they matter.
// clang-format off
constexpr std::array<CommonRow, 44> Rows = {{
    {General,  "Package",               Literal{"kdormaga"},          NotRead{}},
    {General,  "Project",               &Config::ProjectFile,         NotRead{}},
    {General,  "OrmStation",            &Config::CurrentStation,      NotRead{}},
    {General,  "UserID",                &Config::UserId,              NotRead{}},

    {Station,  "EnableDataTraces",      &Config::EnableDataTraces,    &Config::EnableDataTraces},
    {Station,  "DeviceDataTraces",      &Config::DeviceDataTraces,    &Config::DeviceDataTraces},
    {Station,  "NumberTraces",          &Config::NumberTraces,        &Config::NumberTraces},

    {FlowRuns, "Run1",                  FlagInRunList{0},             FlagInRun{0}},
    {FlowRuns, "Run2",                  FlagInRunList{1},             FlagInRun{1}},
    {FlowRuns, "Run3",                  FlagInRunList{2},             FlagInRun{2}},
    {FlowRuns, "Run4",                  FlagInRunList{3},             FlagInRun{3}},
    {FlowRuns, "Run5",                  FlagInRunList{4},             FlagInRun{4}},
    {FlowRuns, "FlowAlgorithm",         &Config::FlowAlgorithm,       &Config::FlowAlgorithm},
    {FlowRuns, "GasDensitySource",      &Config::GasDensitySource,    &Config::GasDensitySource},
    {FlowRuns, "GasDensityStandardT",   &Config::StandardT,           &Config::GasDensityStandardT},
    {FlowRuns, "GasDensityStandardP",   &Config::StandardP,           &Config::GasDensityStandardP},
    {FlowRuns, "SystemUnits",           &Config::SystemUnits,         &Config::SystemUnits},
    {FlowRuns, "WrkFloatModName",       &Working::WrkFloatModName,    &Working::WrkFloatModName},
    {FlowRuns, "WrkFloatRegAddr",       &Working::WrkFloatRegAddr,    &Working::WrkFloatRegAddr},
    {FlowRuns, "WrkFloatRegType",       &Working::WrkFloatRegType,    &Working::WrkFloatRegType},
    {FlowRuns, "WrkIntLongModName",     &Working::WrkIntLongModName,  &Working::WrkIntLongModName},
    {FlowRuns, "WrkIntLongRegAddr",     &Working::WrkIntLongRegAddr,  &Working::WrkIntLongRegAddr},
    {FlowRuns, "WrkIntLongRegType",     &Working::WrkIntLongRegType,  &Working::WrkIntLongRegType},
    {FlowRuns, "WrkAnalogModName",      &Working::WrkAnalogModName,   &Working::WrkAnalogModName},
    {FlowRuns, "WrkAnalogRegAddr",      &Working::WrkAnalogRegAddr,   &Working::WrkAnalogRegAddr},
    {FlowRuns, "WrkAnalogRegType",      &Working::WrkAnalogRegType,   &Working::WrkAnalogRegType},
    {FlowRuns, "Run11",                 FlagInRunList{0},             NotRead{}},
    {FlowRuns, "Run22",                 FlagInRunList{1},             NotRead{}},
    {FlowRuns, "Run33",                 FlagInRunList{2},             NotRead{}},
    {FlowRuns, "Run44",                 FlagInRunList{3},             NotRead{}},
    {FlowRuns, "Run55",                 FlagInRunList{4},             NotRead{}},

    {Flow,     "StandardT",             &Config::StandardT,           &Config::StandardT},
    {Flow,     "StandardP",             &Config::StandardP,           &Config::StandardP},
    {Flow,     "FlowingViscosity",      &Config::FlowingViscosity,    &Config::FlowingViscosity},
    {Flow,     "IsentropicCoeff",       &Config::IsentropicCoeff,     &Config::IsentropicCoeff},
    {Flow,     "Compressible",          Literal{Yes},                 &Config::Compressible},
    {Flow,     "PressType",             &Config::PressType,           &Config::PressType},
    {Flow,     "ExtAtmPress",           &Config::ExtAtmPress,         &Config::ExtAtmPress},
    {Flow,     "AtmPress",              &Config::AtmPress,            &Config::AtmPress},
    {Flow,     "CommonPaKDIORegAddr",   BindingPart::RegAddr,         BindingPart::RegAddr},
    {Flow,     "CommonPaKDIOTag",       BindingPart::Tag,             BindingPart::Tag},
    {Flow,     "CommonPaKDIOType",      BindingPart::Type,            BindingPart::Type},

    {Gas,      "AGA8Method",            &Config::AGA8Method,          &Config::AGA8Method},
    {Gas,      "AGA8CalInput",          &Config::AGA8CalInput,        &Config::AGA8CalInput},
}};
// clang-format on

constexpr std::string_view OrificeSection = "AGA3";
constexpr std::string_view PulseSection = "AGA7";

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
