#include "SampleStation.h"

#include "config/Vocabulary.h"
#include "support/TestFolders.h"

#include <vector>

namespace gfc::config {
namespace {

struct NamedBinding {
    const char* Name;
    TagBinding RunIO::*Field;
    const char* Type;
};

// The place in this list gives the register.
const std::vector<NamedBinding> IOBindings = {
    {"GasPulseInput", &RunIO::GasPulseInput, "LX"},
    {"GasDensity", &RunIO::GasDensity, "AX"},
    {"GasTemp", &RunIO::GasTemp, "AX"},
    {"GasPress", &RunIO::GasPress, "AX"},
    {"Pa", &RunIO::Pa, "AX"},
    {"GasDP", &RunIO::GasDP, "AX"},
    {"ResetTotals", &RunIO::ResetTotals, "X"},
    {"GFCRunHold", &RunIO::GFCRunHold, "X"},
    {"GFCTotalizeHold", &RunIO::GFCTotalizeHold, "X"},
    {"PipeDia", &RunIO::PipeDia, "FX"},
    {"PipeAbsRoughness", &RunIO::PipeAbsRoughness, "FX"},
    {"OrificeDia", &RunIO::OrificeDia, "FX"},
    {"OrificeServiceTime", &RunIO::OrificeServiceTime, "FX"},
    {"StdVolFlow", &RunIO::StdVolFlow, "FY"},
    {"StdMassFlow", &RunIO::StdMassFlow, "FY"},
    {"GasVolume", &RunIO::GasVolume, "FY"},
    {"GasMass", &RunIO::GasMass, "FY"},
    {"AGA3Status", &RunIO::AGA3Status, "FY"},
};

const std::vector<const char*> GasNames = {"GC_C1",
                                           "GC_N2",
                                           "GC_CO2",
                                           "GC_C2",
                                           "GC_C3",
                                           "GC_H2O",
                                           "GC_H2S",
                                           "GC_H",
                                           "GC_CO",
                                           "GC_O2",
                                           "GC_iC4",
                                           "GC_nC4",
                                           "GC_iC5",
                                           "GC_nC5",
                                           "GC_nC6",
                                           "GC_nC7",
                                           "GC_nC8",
                                           "GC_nC9",
                                           "GC_nC10",
                                           "GC_He",
                                           "GC_Ar",
                                           "XH2",
                                           "VolCalorificValue",
                                           "RelativeDensity",
                                           "GCEnable",
                                           "AGA8rhotp",
                                           "AGA8rhos",
                                           "AGA8z",
                                           "AGA8zs",
                                           "AGA8fpvs",
                                           "AGA8uncert",
                                           "AGA8Status",
                                           "AGA8GRs"};

std::string NameOf(int run, const std::string& name) {
    return "R" + std::to_string(run) + "." + name;
}

RunIO SampleIO(int run) {
    const std::string digit = std::to_string(run);
    RunIO io;
    io.CalibrationFactor = "1.0" + digit;
    io.meterKFactor = "2.0" + digit;
    io.GasDensityStandard = "0.7" + digit;
    io.ContractHour = digit;
    io.ContractMin = digit + "0";
    int place = 0;
    for (const NamedBinding& binding : IOBindings)
        io.*binding.Field = {NameOf(run, binding.Name), binding.Type, std::to_string(1000 * run + ++place)};
    if (run == 5) {
        io.GasTemp.Tag = "Température 5";
        io.GFCRunHold = {};
    }
    return io;
}

RunMechanical SampleMechanical(int run, const std::string& flowAlgorithm) {
    const std::string stem = "R" + std::to_string(run) + " ";
    RunMechanical mechanical;
    mechanical.InternalPipeDia = stem + "InternalPipeDia";
    mechanical.PipeMaterial = stem + "PipeMaterial";
    mechanical.InternalPipeDiaRefTemp = stem + "InternalPipeDiaRefTemp";
    mechanical.OrificeDia = stem + "OrificeDia";
    mechanical.OrificeMaterial = stem + "OrificeMaterial";
    mechanical.OrificeDiaRefTemp = stem + "OrificeDiaRefTemp";
    mechanical.PressureTap = stem + "PressureTap";
    mechanical.PressureTapPos = stem + "PressureTapPos";
    mechanical.AccelabarSize = stem + "AccelabarSize";
    mechanical.AccelabarY = stem + "AccelabarY";
    mechanical.AccelabarK = stem + "AccelabarK";
    mechanical.AccelabarThroatDia = stem + "AccelabarThroatDia";
    mechanical.OrificeThermalExpCoeff = stem + "OrificeThermalExpCoeff";
    mechanical.PipeThermalExpCoeff = stem + "PipeThermalExpCoeff";
    mechanical.ExtMechParam = run == 2 && flowAlgorithm != "AGA7" ? "Yes" : "No";
    mechanical.PressType = "never";
    mechanical.ExtAtmPress = "never";
    mechanical.AtmPress = "never";
    return mechanical;
}

std::string SampleType(int slot) {
    if (slot == static_cast<int>(GasSlot::GCEnable))
        return "X";
    return slot >= static_cast<int>(GasSlot::AGA8rhotp) ? "FY" : "FX";
}

RunGas SampleGas(int run, bool measured) {
    RunGas gas;
    for (int slot = 0; slot < static_cast<int>(GasSlots); ++slot) {
        TagBinding& binding = gas[static_cast<GasSlot>(slot)];
        const std::string fixed = "0." + std::to_string(1000 * run + 100 + slot);
        if (!measured && slot <= static_cast<int>(GasSlot::RelativeDensity))
            binding.Tag = fixed;
        else
            binding = {NameOf(run, GasNames[static_cast<std::size_t>(slot)]), SampleType(slot),
                       std::to_string(1000 * run + 100 + slot)};
    }
    return gas;
}

void SetCommonValues(StationConfig& station, const SampleChoices& choices) {
    station.ProjectFile = "/jobs/plant.KPJ";
    station.ProjectName = "plant";
    station.CurrentStation = "North";
    station.UserId = "4711";
    station.EnableDataTraces = "Yes";
    station.DeviceDataTraces = "/nvram/kdormaga.txt";
    station.NumberTraces = "1000";
    station.FlowAlgorithm = choices.Algorithm;
    station.GasDensitySource = choices.Source;
    station.SystemUnits = "Metric";
    station.GasDensityStandardT = "never";
    station.GasDensityStandardP = "never";
    station.WorkingModules = {"VF0", "FX", "11", "VL0", "LX", "12", "VA0", "AX", "13"};
    station.StandardT = "15.00";
    station.StandardP = "1.01325";
    station.Compressible = "No";
    station.FlowingViscosity = "0.010268";
    station.IsentropicCoeff = "1.3";
    station.PressType = "Gage";
    station.ExtAtmPress = choices.Algorithm == "AGA3" || choices.Algorithm == "AGA7" ? "Yes" : "No";
    station.AtmPress = "1.01325";
    station.CommonPa = {"PA-1", "FX", "77"};
    station.AGA8Method = "DETAIL";
    station.AGA8CalInput = choices.CalInput;
    station.FlagAGA7 = choices.Algorithm == "AGA7";
    station.Measured = choices.Source == "MEASURED";
}

} // namespace

StationConfig SampleStation(const SampleChoices& choices) {
    StationConfig station;
    SetCommonValues(station, choices);
    station.ActiveRunCount = 2;
    for (int run = 1; run <= MaxRuns; ++run) {
        auto& flag = station.RunList[static_cast<std::size_t>(run - 1)];
        flag = {"Run" + std::to_string(run), run == 2 || run == 5 ? "Yes" : "No"};
        station.Run[static_cast<std::size_t>(run - 1)] = flag.Flag;
    }
    station.Runs.PrepareWholeStation(2);
    int element = 0;
    for (const int run : {2, 5}) {
        const auto place = static_cast<std::size_t>(element++);
        station.Runs.IO[place] = SampleIO(run);
        station.Runs.Gas[place] = SampleGas(run, choices.CalInput == "MEASURED");
        station.Runs.Mechanical[place] = SampleMechanical(run, choices.Algorithm);
    }
    return station;
}

StationConfig SampleRun(const SampleChoices& choices, int run) {
    StationConfig station = SampleStation(choices);
    station.Runs.PrepareSingleRun();
    station.Runs.IO.front() = SampleIO(run);
    station.Runs.Gas.front() = SampleGas(run, choices.CalInput == "MEASURED");
    station.Runs.Mechanical.front() = SampleMechanical(run, choices.Algorithm);
    return station;
}

std::string GoldenFile(const std::string& name) {
    return test::Golden("config/" + name + ".ini");
}

std::string Lines(std::initializer_list<const char*> lines) {
    std::string text;
    for (const char* line : lines)
        text.append(line).append("\r\n");
    return text;
}

} // namespace gfc::config
