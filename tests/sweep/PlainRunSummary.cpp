#include "PlainPages.h"
#include "PlainVariables.h"

namespace gfc::test::sweep {

namespace {

PlainPage DensimeterPage(const std::string& direction) {
    return {"",
            "No AGA 8/SGERG 88/ISO-12213-2-1997/ISO-12213-3-1997 " + direction +
                " configured. Density source is from external density meter",
            {},
            {}};
}

std::string With(const std::string& caption, const std::string& unit) {
    return caption + " (" + unit + ")";
}

PlainPage InputsPage(const Choice& choice, const PlainFile& file, const std::string& run) {
    const Units units = UnitsOf(choice);
    PlainPage page = TagList();
    const auto put = [&](const std::string& caption, const std::string& stem) {
        PutTag(page, file, run, caption, stem);
    };
    if (choice.Densimeter())
        put(With("Density", units.Density), "GasDensityKDIO");
    if (!choice.AGA7() || !choice.Densimeter()) {
        put(With("Temperature", units.Temperature), "GasTempKDIO");
        put(With("Pressure", units.Pressure), "GasPressKDIO");
        if (!choice.AGA7())
            put(With("Differential Pressure", units.Differential), "GasDPKDIO");
        if (choice.External())
            PutTag(page, file, CommonSection(choice), With("Atmospheric Pressure", units.Pressure),
                   "CommonPaKDIO");
    }
    if (choice.AGA7())
        put(With("Pulse Input", units.MeterFactor), "GasPulseInputKDIO");
    if (choice.HasOrifice() && choice.ExternalDiameters) {
        put(With("Pipe diameter", units.Length), "PipeDiaKDIO");
        put(With("Orifice diameter", units.Length), "OrificeDiaKDIO");
    }
    if (choice.GBT() && choice.ExternalDiameters) {
        put(With("Pipe abs.roughness", units.Length), "PipeAbsRoughnessKDIO");
        put("Orifice service time (year)", "OrificeServiceTimeKDIO");
    }
    put("Flow Run / Hold", "GFCRunHoldKDIO");
    put("Totalize Run / Hold", "GFCTotalizeHoldKDIO");
    put("Reset Totals", "ResetTotalsKDIO");
    return page;
}

PlainPage OutputsPage(const Choice& choice, const PlainFile& file, const std::string& run) {
    const Units units = UnitsOf(choice);
    PlainPage page = TagList();
    PutTag(page, file, run, With("Vol Flow @ Std.", units.VolumeRate), "StdVolFlowKDIO");
    PutTag(page, file, run, With("Mass Flow", units.MassRate), "StdMassFlowKDIO");
    PutTag(page, file, run, With("Volume @ Std.", units.Volume), "GasVolumeKDIO");
    PutTag(page, file, run, With("Mass", units.Mass), "GasMassKDIO");
    std::string status = "AGA 3 Status";
    if (choice.AGA7())
        status = "AGA 7 Status";
    if (choice.GBT())
        status = "SYT6143-2004 Status";
    PutTag(page, file, run, status, "AGA3StatusKDIO");
    return page;
}

struct GasValue {
    std::string Caption, Key;
};

std::vector<GasValue> GasValues(const Choice& choice) {
    if (choice.Gross())
        return {{With("Vol. Calorific Value", UnitsOf(choice).Heating), "VolCalorificValue"},
                {"Relative Density", "RelativeDensity"},
                {"CO2 content (Mole fraction)", "XCO2"},
                {"H2 content (Mole fraction)", "XH2"}};
    std::vector<GasValue> values;
    for (std::size_t i = 0; i < 21; ++i)
        values.push_back({ComponentNames()[i], ComponentKeys()[i]});
    return values;
}

PlainPage FixedGasPage(const Choice& choice, const PlainFile& file, const std::string& run) {
    PlainPage page{"ListView3", "", {"N\u00B0", "Parameters", "Value"}, {}};
    page.Rows.push_back(
        {"1", choice.Gross() ? "Parameters SGERG-88" : "Fixed Gas composition (Mole fractions)", ""});
    int index = 0;
    for (const auto& value : GasValues(choice))
        page.Rows.push_back({"1." + std::to_string(++index), value.Caption, file.Value(run, value.Key)});
    return page;
}

PlainPage GasInputsPage(const Choice& choice, const PlainFile& file, const std::string& run) {
    if (choice.Densimeter())
        return DensimeterPage("inputs");
    if (!choice.Chromatograph)
        return FixedGasPage(choice, file, run);
    PlainPage page = TagList();
    for (const auto& value : GasValues(choice))
        PutTag(page, file, run, value.Caption, value.Key + "KDIO", "Addr");
    PutTag(page, file, run, "Enable", "GCEnableKDIO");
    return page;
}

PlainPage GasOutputsPage(const Choice& choice, const PlainFile& file, const std::string& run) {
    if (choice.Densimeter())
        return DensimeterPage("outputs");
    const Units units = UnitsOf(choice);
    PlainPage page = TagList();
    const auto put = [&](const std::string& caption, const std::string& stem) {
        PutTag(page, file, run, caption, stem);
    };
    put(With("Density @ flowing cond.", units.Density), "AGA8rhotpKDIO");
    put(With("Density @ std. cond.", units.Density), "AGA8rhosKDIO");
    put("Compressibility factor (Z) @ flowing cond.", "AGA8zKDIO");
    put("Compressibility factor (Zs) @ std. cond.", "AGA8zsKDIO");
    put("Supercompressibility factor @ std/flowing cond.", "AGA8fpvsKDIO");
    put("Relative density (GRs)", "AGA8GRsKDIO");
    put("Uncertainty (%)", "AGA8uncertKDIO");
    put(choice.Detail() ? "AGA8 Status" : "SGERG 88 Status", "AGA8StatusKDIO");
    return page;
}

std::string Or(const std::string& value, const std::string& word) {
    return value.empty() ? word : value;
}

void PutOrifice(PlainPage& page, const Choice& choice, const PlainFile& file, const std::string& run) {
    const Units units = UnitsOf(choice);
    const auto read = [&](const char* key) { return Or(file.Value(run, key), "Not Configured"); };
    const auto fixed = [&](const char* key, const std::string& unit) {
        return choice.ExternalDiameters ? "External I/O" : read(key) + " " + unit;
    };
    page.Rows = {{"1", "Orifice Plate", ""},
                 {"1.1", "Internal Dia.", fixed("OrificeDia", units.Length)},
                 {"1.2", "Ref. Temperature", fixed("OrificeDiaRefTemp", units.Temperature)},
                 {"1.3", "Material", read("OrificeMaterial")},
                 {"1.4", "Thermal Coefficient", read("OrificeThermalExpCoeff")},
                 {"2", "Pipe", ""},
                 {"2.1", "Internal Dia.", fixed("InternalPipeDia", units.Length)},
                 {"2.2", "Ref. Temperature", fixed("InternalPipeDiaRefTemp", units.Temperature)},
                 {"2.3", "Material", read("PipeMaterial")},
                 {"2.4", "Thermal Coefficient", read("PipeThermalExpCoeff")},
                 {"3", "Pressure Tap", ""},
                 {"3.1", "Type", read("PressureTap")},
                 {"3.2", "Location", read("PressureTapPos")},
                 {"4", "Pressure Measurement", ""},
                 {"4.1", "Type", read("PressType")},
                 {"4.2", "Atmospheric Pressure", Atmosphere(choice, file)}};
}

void PutAccelabar(PlainPage& page, const PlainFile& file, const std::string& run) {
    page.Rows = {
        {"1", "Accelabar Parameters", ""},
        {"1.2", "Accelabar Size (in)", file.Value(run, "AccelabarSize")},
        {"1.3", "Gas expansion factor coeff. (Ya-coeff)", file.Value(run, "AccelabarY")},
        {"1.4", "Flow coefficient ( K )", file.Value(run, "AccelabarK")},
        {"1.5", "Accelabar Throat Dia. (in)", file.Value(run, "AccelabarThroatDia")},
    };
}

void PutTurbine(PlainPage& page, const Choice& choice, const PlainFile& file, const std::string& run) {
    const bool none = choice.Densimeter();
    page.Rows = {{"1", "Pressure Measurement", ""},
                 {"1.1", "Type", none ? "Not Applicable" : file.Value(run, "PressType")},
                 {"1.2", "Atmospheric Pressure", none ? "Not Applicable" : Atmosphere(choice, file)}};
}

PlainPage ParametersPage(const Choice& choice, const PlainFile& file, const std::string& run) {
    PlainPage page = ParameterList("Value");
    if (choice.HasOrifice())
        PutOrifice(page, choice, file, run);
    else if (choice.Accelabar())
        PutAccelabar(page, file, run);
    else
        PutTurbine(page, choice, file, run);
    return page;
}

} // namespace

std::vector<PlainPage> RunPages(const Choice& choice, const PlainFile& file, int run) {
    const std::string section = RunSection(run);
    return {InputsPage(choice, file, section), OutputsPage(choice, file, section),
            GasInputsPage(choice, file, section), GasOutputsPage(choice, file, section),
            ParametersPage(choice, file, section)};
}

std::vector<std::string> RunHeadings(const Choice& choice) {
    std::string flow = "AGA-3";
    if (choice.AGA7())
        flow = "AGA-7";
    if (choice.GBT())
        flow = "SY/T6143";
    const std::string gas = choice.Gross() ? "SGERG88/ISO-12213-3" : "AGA8/ISO-12213-2";
    // A densimeter's file says nothing of a composition.
    std::string inputs = " Input Tags";
    if (!choice.Densimeter() && !choice.Chromatograph)
        inputs = choice.Gross() ? " Gas Properties" : " Gas Composition";
    return {flow + " Input Tags", flow + " Output Tags", gas + inputs, gas + " Output Tags", "Parameters"};
}

} // namespace gfc::test::sweep
