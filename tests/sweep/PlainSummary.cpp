#include "PlainSummary.h"

#include "PlainVariables.h"

namespace gfc::test::sweep {

namespace {

// The captions of one unit system.
struct Units {
    std::string Length, Temperature, Pressure, Differential, Density, Volume, VolumeRate, Mass, MassRate;
    std::string MeterFactor, Heating;
};

// clang-format off
const Units systems[] = {
    {"in", "\u00BAF", "psia", "in H2O at 60\u00B0F", "lbm/ft^3", "scf",  "ft^3/hr", "lbm", "lbm/hr",
     "pulses/ft^3", "Btu/ft^3"},
    {"in", "\u00BAC", "psia", "in H2O at 60\u00B0F", "lbm/ft^3", "scf",  "ft^3/hr", "lbm", "lbm/hr",
     "pulses/ft^3", "Btu/ft^3"},
    {"mm", "\u00BAC", "bar",  "mbar",                "kg/m^3",   "sm^3", "m^3/hr",  "kg",  "kg/hr",
     "pulses/m^3",  "KWh/m^3"},
    {"mm", "\u00BAF", "bar",  "mbar",                "kg/m^3",   "sm^3", "m^3/hr",  "kg",  "kg/hr",
     "pulses/m^3",  "KWh/m^3"},
    {"mm", "\u00BAC", "MPa",  "Pa",                  "kg/m^3",   "m^3",  "m^3/s",   "kg",  "kg/s",
     "pulses/m^3",  "MJ/m^3"},
};
// clang-format on

Units UnitsOf(const Choice& choice) {
    Units units = systems[choice.Units];
    if (choice.Accelabar() && choice.Units == 0)
        units.Differential = "in H2O at 68\u00B0F";
    return units;
}

using Row = std::vector<std::string>;

PlainPage ParameterList(const std::string& value) {
    return {"ListView1", "", {"N\u00B0", "Parameters", value}, {}};
}

PlainPage TagList() {
    return {"ListView2", "", {"N\u00B0", "Tag Config. As", "Name", "Address", "Type"}, {}};
}

PlainPage DensimeterPage(const std::string& direction) {
    return {"",
            "No AGA 8/SGERG 88/ISO-12213-2-1997/ISO-12213-3-1997 " + direction +
                " configured. Density source is from external density meter",
            {},
            {}};
}

std::string CommonSection(const Choice& choice) {
    return choice.AGA7() ? "AGA7" : "AGA3";
}

std::string RunSection(int run) {
    return "Run" + std::to_string(run);
}

// Whole numbers from 1 on.
void PutRow(PlainPage& page, Row cells) {
    int number = 1;
    for (const Row& row : page.Rows)
        number += row.front().find('.') == std::string::npos ? 1 : 0;
    cells.insert(cells.begin(), std::to_string(number));
    page.Rows.push_back(std::move(cells));
}

void PutTag(PlainPage& page, const PlainFile& file, const std::string& section, const std::string& caption,
            const std::string& stem, const std::string& addressEnd = "RegAddr") {
    PutRow(page, {caption, file.Value(section, stem + "Tag"), file.Value(section, stem + addressEnd),
                  file.Value(section, stem + "Type")});
}

std::string Atmosphere(const Choice& choice, const PlainFile& file) {
    if (choice.Pressure == Pressure::Absolute)
        return "Not Applicable";
    if (choice.External())
        return "External I/O";
    return file.Value(CommonSection(choice), "AtmPress") + " " + UnitsOf(choice).Pressure;
}

PlainPage StationPage(const Choice& choice, const PlainFile& file) {
    const Units units = UnitsOf(choice);
    const std::string common = CommonSection(choice);
    PlainPage page = ParameterList("Data");
    PutRow(page, {"Project Name", "plant"});
    PutRow(page, {"Orm Station", "North"});
    PutRow(page, {"Algorithm", AlgorithmText(choice)});
    PutRow(page, {"Units", UnitsText(choice)});
    PutRow(page, {"Gas Density Source", SourceText(choice)});
    PutRow(page, {"Enable Data Traces", choice.Traces ? "Yes" : "No"});
    if (choice.Traces) {
        page.Rows.push_back({"6.1", "Trace Device", "/nvram/kdormaga.txt"});
        page.Rows.push_back({"6.2", "Number of Traces", "1000"});
    }
    PutRow(page, {"Standard Temperature", file.Value(common, "StandardT") + " " + units.Temperature});
    PutRow(page, {"Standard Pressure", file.Value(common, "StandardP") + " " + units.Pressure});
    PutRow(page, {"Fluid Compressible?", file.Value(common, "Compressible")});
    const std::string viscosity = choice.Units == 4 ? " mPa-s" : " cP";
    PutRow(page, {"Flowing Viscosity",
                  choice.AGA7() ? "Not applicable" : file.Value(common, "FlowingViscosity") + viscosity});
    PutRow(page, {"Isentropic Coefficient",
                  choice.AGA7() ? "Not applicable" : file.Value(common, "IsentropicCoeff")});
    PutRow(page, {"Pressure Type", choice.Pressure == Pressure::Absolute ? "Absolute" : "Gage"});
    PutRow(page, {"Atmospheric Pressure", Atmosphere(choice, file)});
    if (choice.External()) {
        PutRow(page, {"Atmospheric Pressure Tag Name", file.Value(common, "CommonPaKDIOTag")});
        PutRow(page, {"Atmospheric Pressure Tag Type", file.Value(common, "CommonPaKDIOType")});
        PutRow(page, {"Atmospheric Pressure Tag Address", file.Value(common, "CommonPaKDIORegAddr")});
    }
    return page;
}

void PutRunsOfStation(PlainPage& page, const Choice& choice, const PlainFile& file) {
    const Units units = UnitsOf(choice);
    for (const int run : choice.Runs) {
        const std::string name = " (Run" + std::to_string(run) + ")";
        PutRow(page, {"Calibration Factor" + name, file.Value(RunSection(run), "CalibrationFactor")});
        PutRow(page, {"Contract Time" + name + "(Local 24-hr)", LocalTime});
        if (choice.AGA7())
            PutRow(page, {"Meter K-Factor" + name,
                          file.Value(RunSection(run), "meterKFactor") + " " + units.MeterFactor});
        if (choice.Densimeter())
            PutRow(page, {"Density @ Std. Cond." + name,
                          file.Value(RunSection(run), "GasDensityStandard") + " " + units.Density});
    }
}

PlainPage ModulesPage() {
    return {"ListView1",
            "",
            {"N\u00B0", "Module Type", "Module Name", "Address", "Type"},
            {{"1", "Virtual AI", "ALOG", "11", "AX"},
             {"2", "Virtual LI", "LLOG", "31", "LX"},
             {"3", "Virtual FI", "FLOG", "21", "FX"}}};
}

PlainPage DensityPage(const Choice& choice, const PlainFile& file) {
    if (choice.Densimeter())
        return {"", "Measuring with external density meter", {}, {}};
    const Units units = UnitsOf(choice);
    PlainPage page = ParameterList("Value");
    PutRow(page, {"Gas Density Source", SourceText(choice)});
    PutRow(page, {"Gas Composition Source", choice.Chromatograph ? "MEASURED" : "FIXED"});
    PutRow(page,
           {"Standard Temperature", file.Value("FlowRuns", "GasDensityStandardT") + " " + units.Temperature});
    PutRow(page, {"Standard Pressure", file.Value("FlowRuns", "GasDensityStandardP") + " " + units.Pressure});
    return page;
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

std::vector<PlainPage> CommonPages(const Choice& choice, const PlainFile& file) {
    PlainPage station = StationPage(choice, file);
    PutRunsOfStation(station, choice, file);
    return {station, ModulesPage(), DensityPage(choice, file)};
}

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
