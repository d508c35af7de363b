#include "ReadBack.h"

#include "PlainVariables.h"

#include <gtest/gtest.h>

namespace gfc::test::sweep {

namespace {

using config::GasSlot;
using config::RunIO;
using config::RunMechanical;
using config::StationConfig;

template <class Record>
struct TextField {
    std::string Record::*Field;
    const char* Key;
};

template <class Record, std::size_t Count>
void ExpectTexts(const Record& record, const TextField<Record> (&fields)[Count], const PlainFile& file,
                 const std::string& section) {
    for (const auto& field : fields)
        EXPECT_EQ(record.*field.Field, file.Value(section, field.Key)) << section << " " << field.Key;
}

const TextField<StationConfig> flowRunsTexts[] = {
    {&StationConfig::FlowAlgorithm, "FlowAlgorithm"},
    {&StationConfig::GasDensitySource, "GasDensitySource"},
    {&StationConfig::SystemUnits, "SystemUnits"},
    {&StationConfig::GasDensityStandardT, "GasDensityStandardT"},
    {&StationConfig::GasDensityStandardP, "GasDensityStandardP"},
};

const TextField<StationConfig> traceTexts[] = {
    {&StationConfig::EnableDataTraces, "EnableDataTraces"},
    {&StationConfig::DeviceDataTraces, "DeviceDataTraces"},
    {&StationConfig::NumberTraces, "NumberTraces"},
};

const TextField<StationConfig> commonTexts[] = {
    {&StationConfig::StandardT, "StandardT"},
    {&StationConfig::StandardP, "StandardP"},
    {&StationConfig::Compressible, "Compressible"},
    {&StationConfig::FlowingViscosity, "FlowingViscosity"},
    {&StationConfig::IsentropicCoeff, "IsentropicCoeff"},
    {&StationConfig::PressType, "PressType"},
    {&StationConfig::ExtAtmPress, "ExtAtmPress"},
    {&StationConfig::AtmPress, "AtmPress"},
};

using Modules = config::WorkingModules;
const TextField<Modules> moduleTexts[] = {
    {&Modules::WrkFloatModName, "WrkFloatModName"},     {&Modules::WrkFloatRegType, "WrkFloatRegType"},
    {&Modules::WrkFloatRegAddr, "WrkFloatRegAddr"},     {&Modules::WrkIntLongModName, "WrkIntLongModName"},
    {&Modules::WrkIntLongRegType, "WrkIntLongRegType"}, {&Modules::WrkIntLongRegAddr, "WrkIntLongRegAddr"},
    {&Modules::WrkAnalogModName, "WrkAnalogModName"},   {&Modules::WrkAnalogRegType, "WrkAnalogRegType"},
    {&Modules::WrkAnalogRegAddr, "WrkAnalogRegAddr"},
};

const TextField<RunIO> runTexts[] = {
    {&RunIO::CalibrationFactor, "CalibrationFactor"},
    {&RunIO::meterKFactor, "meterKFactor"},
    {&RunIO::GasDensityStandard, "GasDensityStandard"},
    {&RunIO::ContractHour, "ContractHour"},
    {&RunIO::ContractMin, "ContractMin"},
};

const TextField<RunMechanical> mechanicalTexts[] = {
    {&RunMechanical::InternalPipeDia, "InternalPipeDia"},
    {&RunMechanical::PipeMaterial, "PipeMaterial"},
    {&RunMechanical::InternalPipeDiaRefTemp, "InternalPipeDiaRefTemp"},
    {&RunMechanical::OrificeDia, "OrificeDia"},
    {&RunMechanical::OrificeMaterial, "OrificeMaterial"},
    {&RunMechanical::OrificeDiaRefTemp, "OrificeDiaRefTemp"},
    {&RunMechanical::PressureTap, "PressureTap"},
    {&RunMechanical::PressureTapPos, "PressureTapPos"},
    {&RunMechanical::AccelabarSize, "AccelabarSize"},
    {&RunMechanical::AccelabarY, "AccelabarY"},
    {&RunMechanical::AccelabarK, "AccelabarK"},
    {&RunMechanical::AccelabarThroatDia, "AccelabarThroatDia"},
    {&RunMechanical::OrificeThermalExpCoeff, "OrificeThermalExpCoeff"},
    {&RunMechanical::PipeThermalExpCoeff, "PipeThermalExpCoeff"},
    {&RunMechanical::ExtMechParam, "ExtMechParam"},
    {&RunMechanical::PressType, "PressType"},
    {&RunMechanical::ExtAtmPress, "ExtAtmPress"},
    {&RunMechanical::AtmPress, "AtmPress"},
};

const struct {
    config::TagBinding RunIO::*Field;
    const char* Stem;
} runBindings[] = {
    {&RunIO::GasPulseInput, "GasPulseInputKDIO"},
    {&RunIO::GasDensity, "GasDensityKDIO"},
    {&RunIO::GasTemp, "GasTempKDIO"},
    {&RunIO::GasPress, "GasPressKDIO"},
    {&RunIO::Pa, "PaKDIO"},
    {&RunIO::GasDP, "GasDPKDIO"},
    {&RunIO::ResetTotals, "ResetTotalsKDIO"},
    {&RunIO::GFCRunHold, "GFCRunHoldKDIO"},
    {&RunIO::GFCTotalizeHold, "GFCTotalizeHoldKDIO"},
    {&RunIO::PipeDia, "PipeDiaKDIO"},
    {&RunIO::PipeAbsRoughness, "PipeAbsRoughnessKDIO"},
    {&RunIO::OrificeDia, "OrificeDiaKDIO"},
    {&RunIO::OrificeServiceTime, "OrificeServiceTimeKDIO"},
    {&RunIO::StdVolFlow, "StdVolFlowKDIO"},
    {&RunIO::StdMassFlow, "StdMassFlowKDIO"},
    {&RunIO::GasVolume, "GasVolumeKDIO"},
    {&RunIO::GasMass, "GasMassKDIO"},
    {&RunIO::AGA3Status, "AGA3StatusKDIO"},
};

const struct {
    GasSlot Slot;
    const char* Stem;
} gasBindings[] = {
    {GasSlot::AGA8rhotp, "AGA8rhotpKDIO"},   {GasSlot::AGA8rhos, "AGA8rhosKDIO"},
    {GasSlot::AGA8z, "AGA8zKDIO"},           {GasSlot::AGA8zs, "AGA8zsKDIO"},
    {GasSlot::AGA8fpvs, "AGA8fpvsKDIO"},     {GasSlot::AGA8uncert, "AGA8uncertKDIO"},
    {GasSlot::AGA8Status, "AGA8StatusKDIO"}, {GasSlot::AGA8GRs, "AGA8GRsKDIO"},
    {GasSlot::GCEnable, "GCEnableKDIO"},
};

struct GasField {
    GasSlot Slot;
    std::string Key;
};

std::vector<GasField> GasFields(const Choice& choice) {
    if (!choice.Detail())
        return {{GasSlot::RelativeDensity, "RelativeDensity"},
                {GasSlot::VolCalorificValue, "VolCalorificValue"},
                {GasSlot::XCO2, "XCO2"},
                {GasSlot::XH2, "XH2"}};
    std::vector<GasField> fields;
    for (int i = 0; i < 21; ++i)
        fields.push_back({static_cast<GasSlot>(i), ComponentKeys()[static_cast<std::size_t>(i)]});
    return fields;
}

void ExpectBinding(const config::TagBinding& binding, const PlainFile& file, const std::string& section,
                   const std::string& stem, const std::string& addressEnd = "RegAddr") {
    EXPECT_EQ(binding.Tag, file.Value(section, stem + "Tag")) << section << " " << stem;
    EXPECT_EQ(binding.Type, file.Value(section, stem + "Type")) << section << " " << stem;
    EXPECT_EQ(binding.RegAddr, file.Value(section, stem + addressEnd)) << section << " " << stem;
}

void ExpectGas(const StationConfig& station, const Choice& choice, const PlainFile& file,
               const std::string& section) {
    const auto& gas = station.Runs.Gas.front();
    for (const auto& binding : gasBindings)
        ExpectBinding(gas[binding.Slot], file, section, binding.Stem);
    for (const auto& field : GasFields(choice)) {
        ExpectBinding(gas[field.Slot], file, section, field.Key + "KDIO", "Addr");
        EXPECT_EQ(station.GasComposition[field.Slot].Tag, file.Value(section, field.Key)) << field.Key;
    }
    // Deliberately asked for under a key that no writer makes.
    if (choice.Detail()) {
        EXPECT_EQ(gas[GasSlot::XH2], config::TagBinding());
    }
}

} // namespace

void ExpectStation(const StationConfig& station, const Choice& choice, const PlainFile& file) {
    for (std::size_t run = 0; run < 5; ++run)
        EXPECT_EQ(station.Run.at(run), file.Value("FlowRuns", "Run" + std::to_string(run + 1)));
    ExpectTexts(station, flowRunsTexts, file, "FlowRuns");
    ExpectTexts(station, traceTexts, file, "Station");
    const std::string common = choice.AGA7() ? "AGA7" : "AGA3";
    ExpectTexts(station, commonTexts, file, common);
    ExpectBinding(station.CommonPa, file, common, "CommonPaKDIO");
    ExpectTexts(station.WorkingModules, moduleTexts, file, "FlowRuns");
    const std::string gas = choice.Detail() ? "AGA8" : "SGERG88";
    EXPECT_EQ(station.AGA8Method, file.Value(gas, "AGA8Method"));
    EXPECT_EQ(station.AGA8CalInput, file.Value(gas, "AGA8CalInput"));
}

void ExpectRun(const StationConfig& station, const Choice& choice, const PlainFile& file, int run) {
    const std::string section = "Run" + std::to_string(run);
    ASSERT_EQ(station.Runs.IO.size(), 1U);
    ASSERT_EQ(station.Runs.Gas.size(), 1U);
    ASSERT_EQ(station.Runs.Mechanical.size(), 1U);
    ExpectTexts(station.Runs.IO.front(), runTexts, file, section);
    ExpectTexts(station.Runs.Mechanical.front(), mechanicalTexts, file, section);
    for (const auto& binding : runBindings)
        ExpectBinding(station.Runs.IO.front().*binding.Field, file, section, binding.Stem);
    ExpectGas(station, choice, file, section);
}

} // namespace gfc::test::sweep
