#include "PlainBindings.h"
#include "PlainFile.h"
#include "PlainVariables.h"

#include <map>

namespace gfc::test::sweep {

namespace {

std::string IsOn(const Choice& choice, int run) {
    for (const int active : choice.Runs)
        if (active == run)
            return "Yes";
    return "No";
}

// The whole of one configuration, section by section.
struct Account {
    const Choice& The;
    PlainFile File;
    Pools Free = FreeTags();
    PlainTag CommonPa;

    std::string StandardT, StandardP, AtmPress, Viscosity, Isentropic, PressType;

    explicit Account(const Choice& choice) : The(choice) {
        CommonValues();
        if (choice.External())
            CommonPa = TakeFirst(Free.Floats);
    }

    void CommonValues() {
        const char* const temperatures[] = {"60.00", "15.5556", "15.00", "59.00", "20.00"};
        const char* const pressures[] = {"14.73", "14.73", "1.01325", "1.01325", "0.101325"};
        const char* const atmospheres[] = {"14.695949", "14.695949", "1.01325", "1.01325", "0.101325"};
        StandardT = temperatures[The.Units];
        StandardP = pressures[The.Units];
        // With an external pressure the entry is not stored, and a fresh program holds nothing.
        AtmPress = The.External() ? "" : atmospheres[The.Units];
        // A change of the units away from those that GBT brings takes its viscosity back.
        Viscosity = The.GBT() && The.Units == 4 ? "0.01096" : "0.010268";
        Isentropic = The.GBT() ? "1.36" : "1.3";
        PressType = The.Pressure == Pressure::Absolute ? "Absolute" : "Gage";
    }

    void Put(const std::string& key, const std::string& value) { File.Put(key, value); }

    void PutTag(const Bindings& bindings, const std::string& stem,
                const std::string& addressEnd = "RegAddr") {
        const auto found = bindings.find(stem);
        const PlainTag tag = found == bindings.end() ? PlainTag() : found->second;
        Put(stem + "Tag", tag.Name);
        Put(stem + "Type", tag.Type);
        Put(stem + addressEnd, tag.Address);
    }

    void General() {
        File.Begin("General");
        Put("Package", "kdormaga");
        Put("Project", "/jobs/plant.KPJ");
        Put("OrmStation", "North");
        Put("UserID", "4711");
        File.Begin("Station");
        Put("EnableDataTraces", The.Traces ? "Yes" : "No");
        Put("DeviceDataTraces", The.Traces ? "/nvram/kdormaga.txt" : "");
        Put("NumberTraces", The.Traces ? "1000" : "");
    }

    void FlowRuns() {
        File.Begin("FlowRuns");
        for (int run = 1; run <= 5; ++run)
            Put("Run" + std::to_string(run), IsOn(The, run));
        Put("FlowAlgorithm", AlgorithmText(The));
        Put("GasDensitySource", SourceText(The));
        Put("GasDensityStandardT", StandardT);
        Put("GasDensityStandardP", StandardP);
        Put("SystemUnits", UnitsText(The));
        Put("WrkFloatModName", "FLOG");
        Put("WrkFloatRegAddr", "21");
        Put("WrkFloatRegType", "FX");
        Put("WrkIntLongModName", "LLOG");
        Put("WrkIntLongRegAddr", "31");
        Put("WrkIntLongRegType", "LX");
        Put("WrkAnalogModName", "ALOG");
        Put("WrkAnalogRegAddr", "11");
        Put("WrkAnalogRegType", "AX");
        for (int run = 1; run <= 5; ++run)
            Put("Run" + std::to_string(run * 11), IsOn(The, run));
    }

    void Common() {
        File.Begin(The.AGA7() ? "AGA7" : "AGA3");
        Put("StandardT", StandardT);
        Put("StandardP", StandardP);
        Put("FlowingViscosity", Viscosity);
        Put("IsentropicCoeff", Isentropic);
        Put("Compressible", "Yes"); // whatever was chosen
        Put("PressType", PressType);
        Put("ExtAtmPress", The.External() ? "Yes" : "No");
        Put("AtmPress", AtmPress);
        Put("CommonPaKDIORegAddr", CommonPa.Address);
        Put("CommonPaKDIOTag", CommonPa.Name);
        Put("CommonPaKDIOType", CommonPa.Type);
        if (The.Densimeter())
            return;
        File.Begin(The.Detail() ? "AGA8" : "SGERG88");
        Put("AGA8Method", "DETAIL");
        Put("AGA8CalInput", The.Chromatograph ? "MEASURED" : "FIXED");
    }

    void Run(int run) {
        const Bindings tags = BindRun(The, Free);
        File.Begin("Run" + std::to_string(run));
        GroupA();
        if (!The.AGA7())
            GroupB();
        if (The.Accelabar())
            GroupC();
        if (The.HasOrifice())
            Put("ExtMechParam", The.ExternalDiameters ? "Yes" : "No");
        GroupsEToG(tags);
        GroupsHToK(tags);
        GroupsLToO(tags);
        if (!The.Densimeter())
            GroupsPToU(tags);
    }

    void GroupA() {
        Put("SystemUnits", UnitsText(The));
        Put("FlowAlgorithm", AlgorithmText(The));
        Put("GasDensitySource", SourceText(The));
        Put("StandardT", StandardT);
        Put("StandardP", StandardP);
        Put("Compressible", The.Incompressible ? "No" : "Yes");
        Put("FlowingViscosity", Viscosity);
        Put("IsentropicCoeff", Isentropic);
    }

    // An Accelabar run has the keys and no values.
    void GroupB() {
        const bool inches = The.Units == 0 || The.Units == 1;
        const bool fahrenheit = The.Units == 0 || The.Units == 3;
        const auto orifice = [&](const std::string& value) { return The.HasOrifice() ? value : ""; };
        const std::string reference = orifice(fahrenheit ? "68.00" : "20.00");
        Put("PressureTap", orifice("Flange"));
        Put("PressureTapPos", orifice("Up"));
        Put("PipeMaterial", orifice("CS"));
        Put("InternalPipeDia", orifice(inches ? "2.90039" : "363.513"));
        Put("InternalPipeDiaRefTemp", reference);
        Put("OrificeMaterial", orifice("SS"));
        Put("OrificeDia", orifice(inches ? "0.57811" : "193.675"));
        Put("OrificeDiaRefTemp", reference);
        Put("OrificeThermalExpCoeff", "");
        Put("PipeThermalExpCoeff", "");
    }

    void GroupC() {
        const char* const sizes[][4] = {{"3", "0.7432", "0.6566", "1.289"},
                                        {"4", "0.6986", "0.7106", "1.700"},
                                        {"6", "0.6865", "0.6779", "2.560"},
                                        {"8", "0.6407", "0.7123", "3.389"},
                                        {"10", "0.6095", "0.7329", "4.251"}};
        const auto& row = sizes[AccelabarEntry(The)];
        Put("AccelabarSize", row[0]);
        Put("AccelabarY", row[1]);
        Put("AccelabarK", row[2]);
        Put("AccelabarThroatDia", row[3]);
    }

    void GroupsEToG(const Bindings& tags) {
        Put("PressType", PressType);
        Put("ExtAtmPress", The.External() ? "Yes" : "No");
        Put("AtmPress", AtmPress);
        Put("CalibrationFactor", "1.0");
        Put("ContractHour", GMTHour);
        Put("ContractMin", GMTMinute);
        if (!The.Densimeter())
            return;
        Put("GasDensityStandard", DensityStandard);
        PutTag(tags, "GasDensityKDIO");
    }

    void GroupsHToK(const Bindings& tags) {
        if (!(The.AGA7() && The.Densimeter())) {
            PutTag(tags, "GasTempKDIO");
            PutTag(tags, "GasPressKDIO");
        }
        if (The.External())
            PutTag({{"PaKDIO", CommonPa}}, "PaKDIO");
        if (!The.AGA7()) {
            PutTag(tags, "GasDPKDIO");
            return;
        }
        Put("meterKFactor", "1.0");
        PutTag(tags, "GasPulseInputKDIO");
    }

    void GroupsLToO(const Bindings& tags) {
        if (The.ExternalDiameters) {
            PutTag(tags, "PipeDiaKDIO");
            PutTag(tags, "OrificeDiaKDIO");
        }
        if (The.GBT()) {
            PutTag(tags, "PipeAbsRoughnessKDIO");
            PutTag(tags, "OrificeServiceTimeKDIO");
        }
        PutTag(tags, "GFCRunHoldKDIO");
        PutTag(tags, "GFCTotalizeHoldKDIO");
        PutTag(tags, "ResetTotalsKDIO");
        PutTag(tags, "StdMassFlowKDIO");
        // Two of these keys are written in small letters.
        const PlainTag& flow = tags.at("StdVolFlowKDIO");
        Put("StdVolFlowKDIOtag", flow.Name);
        Put("StdVolFlowKDIOtype", flow.Type);
        Put("StdVolFlowKDIORegAddr", flow.Address);
        PutTag(tags, "GasVolumeKDIO");
        PutTag(tags, "GasMassKDIO");
        PutTag(tags, "AGA3StatusKDIO");
    }

    void GroupsPToU(const Bindings& tags) {
        if (The.Chromatograph)
            MeasuredGas(tags);
        else if (The.Detail())
            FixedComposition();
        else
            FixedProperties();
        for (const char* stem : {"AGA8fpvsKDIO", "AGA8rhosKDIO", "AGA8rhotpKDIO", "AGA8zKDIO", "AGA8zsKDIO",
                                 "AGA8GRsKDIO", "AGA8uncertKDIO", "AGA8StatusKDIO"})
            PutTag(tags, stem);
    }

    void MeasuredGas(const Bindings& tags) {
        PutTag(tags, "GCEnableKDIO");
        if (The.Detail())
            for (const auto& component : ComponentKeys())
                PutTag(tags, component + "KDIO", "Addr");
        else
            for (const char* stem : {"VolCalorificValueKDIO", "RelativeDensityKDIO", "XCO2KDIO", "XH2KDIO"})
                PutTag(tags, stem, "Addr");
    }

    void FixedComposition() {
        const std::map<std::string, std::string> present = {
            {"GC_N2", "0.002595"},  {"GC_C1", "0.965222"},  {"GC_C2", "0.018186"},  {"GC_C3", "0.004596"},
            {"GC_iC4", "0.000977"}, {"GC_nC4", "0.001007"}, {"GC_iC5", "0.000473"}, {"GC_nC5", "0.000324"},
            {"GC_nC6", "0.000664"}, {"GC_CO2", "0.005956"}};
        for (const auto& component : ComponentKeys())
            Put(component, present.contains(component) ? present.at(component) : "0.000000");
    }

    void FixedProperties() {
        const char* const heating[] = {"1091.28", "1091.28", "11.29444", "11.29444", "40.66"};
        Put("VolCalorificValue", heating[The.Units]);
        Put("RelativeDensity", "0.581");
        Put("XCO2", "0.006");
        Put("XH2", "0.000");
    }
};

} // namespace

PlainFile FileOf(const Choice& choice) {
    Account account(choice);
    account.General();
    account.FlowRuns();
    account.Common();
    for (const int run : choice.Runs)
        account.Run(run);
    return account.File;
}

} // namespace gfc::test::sweep
