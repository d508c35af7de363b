#include "PlainVariables.h"

namespace gfc::test::sweep {

const std::vector<std::string>& ComponentKeys() {
    static const std::vector<std::string> keys = {"GC_C1",   "GC_N2",  "GC_CO2", "GC_C2",  "GC_C3",  "GC_H2O",
                                                  "GC_H2S",  "GC_H",   "GC_CO",  "GC_O2",  "GC_iC4", "GC_nC4",
                                                  "GC_iC5",  "GC_nC5", "GC_nC6", "GC_nC7", "GC_nC8", "GC_nC9",
                                                  "GC_nC10", "GC_He",  "GC_Ar"};
    return keys;
}

const std::vector<std::string>& ComponentNames() {
    static const std::vector<std::string> names = {
        "Methane",   "Nitrogen",         "Carbon Dioxide", "Ethane",          "Propane",
        "Water",     "Hydrogen Sulfite", "Hydrogen",       "Carbon Monoxide", "Oxygen",
        "i-Butane",  "n-Butane",         "i-Pentane",      "n-Pentane",       "n-Hexane",
        "n-Heptane", "n-Octane",         "n-Nonane",       "n-Decane",        "Helium",
        "Argon"};
    return names;
}

std::vector<PlainVariable> RunInputVariables(const Choice& choice) {
    std::vector<PlainVariable> inputs;
    if (choice.Densimeter())
        inputs.push_back({"Density", 'F', "GasDensityKDIO"});
    if (!choice.AGA7() || !choice.Densimeter()) {
        inputs.push_back({"Temperature", 'F', "GasTempKDIO"});
        inputs.push_back({"Pressure", 'F', "GasPressKDIO"});
    }
    if (!choice.AGA7())
        inputs.push_back({"Differential Pressure", 'F', "GasDPKDIO"});
    if (!choice.AGA7() && choice.ExternalDiameters) {
        inputs.push_back({"Pipe diameter", 'F', "PipeDiaKDIO"});
        inputs.push_back({"Orifice diameter", 'F', "OrificeDiaKDIO"});
    }
    if (choice.GBT()) {
        inputs.push_back({"Pipe abs.roughness (K)", 'F', "PipeAbsRoughnessKDIO"});
        inputs.push_back({"Orifice service time (t)", 'F', "OrificeServiceTimeKDIO"});
    }
    if (choice.AGA7())
        inputs.push_back({"Turbine Pulses", 'L', "GasPulseInputKDIO"});
    inputs.push_back({"Flow Run / Hold", 'D', "GFCRunHoldKDIO"});
    inputs.push_back({"Totalize Run / Hold", 'D', "GFCTotalizeHoldKDIO"});
    inputs.push_back({"Reset", 'D', "ResetTotalsKDIO"});
    return inputs;
}

std::vector<PlainVariable> RunOutputVariables(const Choice& choice) {
    std::string status = "AGA-3 Status";
    if (choice.AGA7())
        status = "AGA-7 Status";
    if (choice.GBT())
        status = "SYT6143-2004 Status";
    return {{"Volume Flow", 'F', "StdVolFlowKDIO"},
            {"Mass Flow", 'F', "StdMassFlowKDIO"},
            {"Volume", 'F', "GasVolumeKDIO"},
            {"Mass", 'F', "GasMassKDIO"},
            {status, 'A', "AGA3StatusKDIO"}};
}

std::vector<PlainVariable> GasInputVariables(const Choice& choice) {
    if (choice.Densimeter() || !choice.Chromatograph)
        return {};
    std::vector<PlainVariable> inputs;
    if (choice.Detail())
        for (std::size_t i = 0; i < 21; ++i)
            inputs.push_back({ComponentNames()[i], 'F', ComponentKeys()[i] + "KDIO"});
    else
        inputs = {{"Calorific Vol.", 'F', "VolCalorificValueKDIO"},
                  {"Relative Density", 'F', "RelativeDensityKDIO"},
                  {"CO2 content", 'F', "XCO2KDIO"},
                  {"H2 content", 'F', "XH2KDIO"}};
    inputs.push_back({"Enable", 'D', "GCEnableKDIO"});
    return inputs;
}

std::vector<PlainVariable> GasOutputVariables(const Choice& choice) {
    if (choice.Densimeter())
        return {};
    return {{"Density(T,P)", 'F', "AGA8rhotpKDIO"},
            {"Standard Density", 'F', "AGA8rhosKDIO"},
            {"Compressibility (Z)", 'F', "AGA8zKDIO"},
            {"Standard Compressibility (Zs)", 'F', "AGA8zsKDIO"},
            {"Supercompressibility (Fpvs)", 'F', "AGA8fpvsKDIO"},
            {"Relative Density (GRs)", 'F', "AGA8GRsKDIO"},
            {"Uncertainty", 'F', "AGA8uncertKDIO"},
            {choice.Detail() ? "AGA 8 Status" : "SGERG 88 Status", 'A', "AGA8StatusKDIO"}};
}

} // namespace gfc::test::sweep
