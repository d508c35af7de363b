#include "SummaryUnderTest.h"
#include "binding/SummaryCommon.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using namespace binding;

config::StationConfig Filled(std::string_view algorithm, std::string_view source) {
    config::StationConfig station = StationWith(algorithm, source);
    station.ProjectName = "plant";
    station.CurrentStation = "North";
    station.EnableDataTraces = "No";
    station.DeviceDataTraces = "/nvram/kdormaga.txt";
    station.NumberTraces = "1000";
    station.StandardT = "15.00";
    station.StandardP = "1.01325";
    station.Compressible = "Yes";
    station.FlowingViscosity = "0.010268";
    station.IsentropicCoeff = "1.3";
    station.PressType = "Gage";
    station.ExtAtmPress = "No";
    station.AtmPress = "1.01";
    station.CommonPa = {"PA-1", "FX", "77"};
    return station;
}

const EnabledRun RunTwo{2, "1.02", "07:05", "100.5", "0.8"};
const EnabledRun RunFive{5, "1.05", "23:59", "500", "0.9"};

TEST(CommonParametersPage, lists_every_parameter_in_order) {
    const auto page = CommonParametersPage(Filled("AGA3", "AGA8"), {});
    EXPECT_EQ(page.List, SummaryList::Parameters);
    EXPECT_EQ(page.Line, "");
    EXPECT_EQ(page.Columns, (Texts{"N\u00B0", "Parameters", "Data"}));
    EXPECT_EQ(page.Rows, (SummaryRows{
                             {"1", "Project Name", "plant"},
                             {"2", "Orm Station", "North"},
                             {"3", "Algorithm", "AGA3"},
                             {"4", "Units", "Metric"},
                             {"5", "Gas Density Source", "AGA8"},
                             {"6", "Enable Data Traces", "No"},
                             {"7", "Standard Temperature", "15.00 \u00BAC"},
                             {"8", "Standard Pressure", "1.01325 bar"},
                             {"9", "Fluid Compressible?", "Yes"},
                             {"10", "Flowing Viscosity", "0.010268 cP"},
                             {"11", "Isentropic Coefficient", "1.3"},
                             {"12", "Pressure Type", "Gage"},
                             {"13", "Atmospheric Pressure", "1.01 bar"},
                         }));
}

TEST(CommonParametersPage, says_not_configured_for_what_was_never_set) {
    const auto page = CommonParametersPage(config::StationConfig(), {});
    ASSERT_EQ(page.Rows.size(), 13U);
    for (const auto& row : page.Rows) {
        const bool byAlgorithm = row[0] == "10" || row[0] == "11";
        EXPECT_EQ(row[2], byAlgorithm ? "Not applicable" : "Not Configured") << row[1];
    }
}

TEST(CommonParametersPage, says_not_configured_without_a_unit_for_missing_flow_properties) {
    auto station = Filled("AGA3", "AGA8");
    station.FlowingViscosity.clear();
    station.IsentropicCoeff.clear();
    EXPECT_EQ(ValueAt(CommonParametersPage(station, {}), "10"), "Not Configured");
    EXPECT_EQ(ValueAt(CommonParametersPage(station, {}), "11"), "Not Configured");
}

TEST(CommonParametersPage, shows_algorithm_and_source_as_stored) {
    for (const auto algorithm : AllAlgorithms)
        for (const auto source : AllSources) {
            const auto page = CommonParametersPage(Filled(algorithm, source), {});
            EXPECT_EQ(ValueAt(page, "3"), algorithm);
            EXPECT_EQ(ValueAt(page, "5"), source);
        }
}

TEST(CommonParametersPage, cuts_the_station_name_at_its_end_and_keeps_its_blanks) {
    auto station = Filled("AGA3", "AGA8");
    station.CurrentStation = std::string("  North West \0\0\0", 16);
    EXPECT_EQ(ValueAt(CommonParametersPage(station, {}), "2"), "  North West ");
    station.CurrentStation = "   ";
    EXPECT_EQ(ValueAt(CommonParametersPage(station, {}), "2"), "   ");
    station.CurrentStation = "";
    EXPECT_EQ(ValueAt(CommonParametersPage(station, {}), "2"), "Not Configured");
}

TEST(CommonParametersPage, adds_two_sub_rows_where_traces_are_enabled) {
    auto station = Filled("AGA3", "AGA8");
    for (const char* yes : {"Yes", "yes"}) {
        station.EnableDataTraces = yes;
        const auto page = CommonParametersPage(station, {});
        ASSERT_EQ(page.Rows.size(), 15U);
        EXPECT_EQ(page.Rows[5], (Texts{"6", "Enable Data Traces", yes}));
        EXPECT_EQ(page.Rows[6], (Texts{"6.1", "Trace Device", "/nvram/kdormaga.txt"}));
        EXPECT_EQ(page.Rows[7], (Texts{"6.2", "Number of Traces", "1000"}));
        EXPECT_EQ(page.Rows[8][0], "7");
    }
}

TEST(CommonParametersPage, follows_the_units) {
    ForEachUnits([](std::string_view units, const UnitTexts& texts) {
        auto station = Filled("SYT6143-2004", "AGA8");
        station.SystemUnits = units;
        const auto page = CommonParametersPage(station, {});
        EXPECT_EQ(ValueAt(page, "4"), units);
        EXPECT_EQ(ValueAt(page, "7"), "15.00 " + texts.Temperature) << units;
        EXPECT_EQ(ValueAt(page, "8"), "1.01325 " + texts.Pressure) << units;
        EXPECT_EQ(ValueAt(page, "10"), "0.010268 " + texts.Viscosity) << units;
        EXPECT_EQ(ValueAt(page, "11"), "1.3") << units;
        EXPECT_EQ(ValueAt(page, "13"), "1.01 " + texts.Pressure) << units;
    });
}

TEST(CommonParametersPage, captions_an_unknown_unit_system_as_practical_si) {
    auto station = Filled("AGA3", "AGA8");
    station.SystemUnits = "SI";
    const auto page = CommonParametersPage(station, {});
    EXPECT_EQ(ValueAt(page, "4"), "SI");
    EXPECT_EQ(ValueAt(page, "8"), "1.01325 MPa");
    EXPECT_EQ(ValueAt(page, "10"), "0.010268 mPa-s");
}

TEST(CommonParametersPage, shows_flow_properties_where_the_algorithm_uses_them) {
    for (const auto algorithm : AllAlgorithms) {
        const auto page = CommonParametersPage(Filled(algorithm, "AGA8"), {});
        const bool isTurbine = algorithm == config::algorithm::AGA7;
        EXPECT_EQ(ValueAt(page, "10"), isTurbine ? "Not applicable" : "0.010268 cP") << algorithm;
        EXPECT_EQ(ValueAt(page, "11"), isTurbine ? "Not applicable" : "1.3") << algorithm;
    }
}

TEST(CommonParametersPage, has_no_atmospheric_pressure_beside_an_absolute_one) {
    auto station = Filled("AGA3", "AGA8");
    station.PressType = "Absolute";
    station.ExtAtmPress = "Yes";
    const auto page = CommonParametersPage(station, {});
    EXPECT_EQ(ValueAt(page, "12"), "Absolute");
    EXPECT_EQ(ValueAt(page, "13"), "Not Applicable");
    EXPECT_EQ(page.Rows.size(), 13U);
}

TEST(CommonParametersPage, shows_the_tag_of_an_external_atmospheric_pressure) {
    auto station = Filled("AGA3", "AGA8");
    station.ExtAtmPress = "Yes";
    const auto page = CommonParametersPage(station, {});
    ASSERT_EQ(page.Rows.size(), 16U);
    EXPECT_EQ(page.Rows[12], (Texts{"13", "Atmospheric Pressure", "External I/O"}));
    EXPECT_EQ(page.Rows[13], (Texts{"14", "Atmospheric Pressure Tag Name", "PA-1"}));
    EXPECT_EQ(page.Rows[14], (Texts{"15", "Atmospheric Pressure Tag Type", "FX"}));
    EXPECT_EQ(page.Rows[15], (Texts{"16", "Atmospheric Pressure Tag Address", "77"}));
}

TEST(CommonParametersPage, says_not_configured_for_a_pressure_tag_not_yet_bound) {
    auto station = Filled("AGA3", "AGA8");
    station.ExtAtmPress = "Yes";
    station.CommonPa = {};
    const auto page = CommonParametersPage(station, {});
    for (const char* number : {"14", "15", "16"})
        EXPECT_EQ(ValueAt(page, number), "Not Configured");
}

TEST(CommonParametersPage, goes_on_with_the_enabled_runs_after_the_thirteenth_row) {
    const EnabledRun runs[] = {RunTwo, RunFive};
    const auto page = CommonParametersPage(Filled("AGA3", "AGA8"), runs);
    ASSERT_EQ(page.Rows.size(), 17U);
    EXPECT_EQ(page.Rows[13], (Texts{"14", "Calibration Factor (Run2)", "1.02"}));
    EXPECT_EQ(page.Rows[14], (Texts{"15", "Contract Time (Run2)(Local 24-hr)", "07:05"}));
    EXPECT_EQ(page.Rows[15], (Texts{"16", "Calibration Factor (Run5)", "1.05"}));
    EXPECT_EQ(page.Rows[16], (Texts{"17", "Contract Time (Run5)(Local 24-hr)", "23:59"}));
}

TEST(CommonParametersPage, goes_on_with_the_runs_after_the_pressure_tag_and_the_traces) {
    auto station = Filled("AGA7", "MEASURED");
    station.ExtAtmPress = "Yes";
    station.EnableDataTraces = "Yes";
    const EnabledRun runs[] = {RunTwo};
    const auto page = CommonParametersPage(station, runs);
    ASSERT_EQ(page.Rows.size(), 22U);
    EXPECT_EQ(page.Rows[18], (Texts{"17", "Calibration Factor (Run2)", "1.02"}));
    EXPECT_EQ(page.Rows[19], (Texts{"18", "Contract Time (Run2)(Local 24-hr)", "07:05"}));
    EXPECT_EQ(page.Rows[20], (Texts{"19", "Meter K-Factor (Run2)", "100.5 pulses/m^3"}));
    EXPECT_EQ(page.Rows[21], (Texts{"20", "Density @ Std. Cond. (Run2)", "0.8 kg/m^3"}));
}

TEST(CommonParametersPage, shows_of_a_run_what_algorithm_and_source_have_in_every_unit_system) {
    const EnabledRun runs[] = {RunTwo};
    for (const auto algorithm : AllAlgorithms)
        for (const auto source : AllSources)
            ForEachUnits([&](std::string_view units, const UnitTexts& texts) {
                auto station = Filled(algorithm, source);
                station.SystemUnits = units;
                const auto page = CommonParametersPage(station, runs);
                SummaryRows expected = {{"14", "Calibration Factor (Run2)", "1.02"},
                                        {"15", "Contract Time (Run2)(Local 24-hr)", "07:05"}};
                if (algorithm == "AGA7")
                    expected.push_back({"16", "Meter K-Factor (Run2)", "100.5 " + texts.MeterFactor});
                if (source == "MEASURED")
                    expected.push_back({algorithm == "AGA7" ? "17" : "16", "Density @ Std. Cond. (Run2)",
                                        "0.8 " + texts.Density});
                EXPECT_EQ(SummaryRows(page.Rows.begin() + 13, page.Rows.end()), expected)
                    << algorithm << " " << source << " " << units;
            });
}

TEST(CommonParametersPage, says_not_configured_for_what_a_run_lacks) {
    const EnabledRun runs[] = {{3, "", "", "", ""}};
    const auto page = CommonParametersPage(Filled("AGA7", "MEASURED"), runs);
    ASSERT_EQ(page.Rows.size(), 17U);
    for (std::size_t row = 13; row < page.Rows.size(); ++row)
        EXPECT_EQ(page.Rows[row][2], "Not Configured") << page.Rows[row][1];
}

TEST(WorkingModulesPage, lists_the_three_modules) {
    auto station = Filled("AGA3", "AGA8");
    auto& modules = station.WorkingModules;
    modules.WrkFloatModName = "VF0", modules.WrkFloatRegType = "FX", modules.WrkFloatRegAddr = "11";
    modules.WrkIntLongModName = "VL0", modules.WrkIntLongRegType = "LX", modules.WrkIntLongRegAddr = "12";
    modules.WrkAnalogModName = "VA0", modules.WrkAnalogRegType = "AX", modules.WrkAnalogRegAddr = "13";
    const auto page = WorkingModulesPage(station);
    EXPECT_EQ(page.List, SummaryList::Parameters);
    EXPECT_EQ(page.Columns, (Texts{"N\u00B0", "Module Type", "Module Name", "Address", "Type"}));
    EXPECT_EQ(page.Rows, (SummaryRows{{"1", "Virtual AI", "VA0", "13", "AX"},
                                      {"2", "Virtual LI", "VL0", "12", "LX"},
                                      {"3", "Virtual FI", "VF0", "11", "FX"}}));
}

TEST(WorkingModulesPage, says_not_configured_for_a_module_that_was_not_chosen) {
    const auto page = WorkingModulesPage(config::StationConfig());
    EXPECT_EQ(page.Rows.at(1),
              (Texts{"2", "Virtual LI", "Not Configured", "Not Configured", "Not Configured"}));
}

TEST(GasDensityPage, says_of_a_densimeter_just_one_line) {
    const auto page = GasDensityPage(Filled("AGA3", "MEASURED"));
    EXPECT_EQ(page.List, SummaryList::None);
    EXPECT_EQ(page.Line, "Measuring with external density meter");
    EXPECT_TRUE(page.Columns.empty());
    EXPECT_TRUE(page.Rows.empty());
}

TEST(GasDensityPage, lists_the_source_and_its_own_reference_conditions) {
    for (const auto source : AllSources) {
        if (source == "MEASURED")
            continue;
        ForEachUnits([source](std::string_view units, const UnitTexts& texts) {
            auto station = Filled("AGA3", source);
            station.SystemUnits = units;
            station.AGA8CalInput = "FIXED";
            station.GasDensityStandardT = "16.00";
            station.GasDensityStandardP = "1.02";
            const auto page = GasDensityPage(station);
            EXPECT_EQ(page.List, SummaryList::Parameters);
            EXPECT_EQ(page.Columns, (Texts{"N\u00B0", "Parameters", "Value"}));
            EXPECT_EQ(page.Rows, (SummaryRows{
                                     {"1", "Gas Density Source", std::string(source)},
                                     {"2", "Gas Composition Source", "FIXED"},
                                     {"3", "Standard Temperature", "16.00 " + texts.Temperature},
                                     {"4", "Standard Pressure", "1.02 " + texts.Pressure},
                                 }));
        });
    }
}

TEST(GasDensityPage, says_not_configured_for_what_the_file_lacks) {
    const auto page = GasDensityPage(config::StationConfig());
    EXPECT_EQ(ColumnOf(page, 2), Texts(4, "Not Configured"));
}

} // namespace

} // namespace gfc::test
