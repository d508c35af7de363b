#include "PlainSummary.h"

#include "PlainPages.h"

namespace gfc::test::sweep {

namespace {

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

} // namespace

std::vector<PlainPage> CommonPages(const Choice& choice, const PlainFile& file) {
    PlainPage station = StationPage(choice, file);
    PutRunsOfStation(station, choice, file);
    return {station, ModulesPage(), DensityPage(choice, file)};
}

} // namespace gfc::test::sweep
