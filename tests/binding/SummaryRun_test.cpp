#include "SummaryUnderTest.h"
#include "binding/SummaryRun.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using namespace binding;

const Texts TagColumns = {"N\u00B0", "Tag Config. As", "Name", "Address", "Type"};

const Texts Components = {
    "Methane",  "Nitrogen",        "Carbon Dioxide", "Ethane",   "Propane",  "Water",     "Hydrogen Sulfite",
    "Hydrogen", "Carbon Monoxide", "Oxygen",         "i-Butane", "n-Butane", "i-Pentane", "n-Pentane",
    "n-Hexane", "n-Heptane",       "n-Octane",       "n-Nonane", "n-Decane", "Helium",    "Argon"};

// What the first page lists, written out from the conditions one by one.
Texts ExpectedInputs(const config::StationConfig& station, const UnitTexts& units) {
    const bool isTurbine = station.FlowAlgorithm == "AGA7";
    const bool isMeasured = station.GasDensitySource == "MEASURED";
    const bool isExternal = station.Runs.Mechanical.front().ExtMechParam == "Yes";
    const bool isSYT = station.FlowAlgorithm == "SYT6143-2004";
    Texts rows;
    if (isMeasured)
        rows.push_back("Density (" + units.Density + ")");
    if (!isTurbine || !isMeasured) {
        rows.push_back("Temperature (" + units.Temperature + ")");
        rows.push_back("Pressure (" + units.Pressure + ")");
    }
    if (!isTurbine)
        rows.push_back("Differential Pressure (" + units.Differential + ")");
    if (station.ExtAtmPress == "Yes" && (!isTurbine || !isMeasured))
        rows.push_back("Atmospheric Pressure (" + units.Pressure + ")");
    if (isTurbine)
        rows.push_back("Pulse Input (" + units.MeterFactor + ")");
    if (isExternal && (isSYT || station.FlowAlgorithm == "AGA3")) {
        rows.push_back("Pipe diameter (" + units.Length + ")");
        rows.push_back("Orifice diameter (" + units.Length + ")");
    }
    if (isExternal && isSYT) {
        rows.push_back("Pipe abs.roughness (" + units.Length + ")");
        rows.push_back("Orifice service time (year)");
    }
    for (const char* digital : {"Flow Run / Hold", "Totalize Run / Hold", "Reset Totals"})
        rows.push_back(digital);
    return rows;
}

Texts Numbers(std::size_t count) {
    Texts numbers;
    for (std::size_t i = 1; i <= count; ++i)
        numbers.push_back(std::to_string(i));
    return numbers;
}

TEST(RunInputsPage, lists_what_algorithm_source_and_options_call_for_in_every_unit_system) {
    for (const auto algorithm : AllAlgorithms)
        for (const auto source : AllSources)
            for (const char* atmosphere : {"Yes", "No"})
                for (const char* mechanical : {"Yes", "No"})
                    ForEachUnits([&](std::string_view units, UnitTexts texts) {
                        auto station = StationWith(algorithm, source);
                        station.SystemUnits = units;
                        station.ExtAtmPress = atmosphere;
                        station.Runs.Mechanical.front().ExtMechParam = mechanical;
                        // Deliberately in this one case alone.
                        if (units == "US" && algorithm == "Accelabar-AGA-3-1992")
                            texts.Differential = "in H2O at 68\u00B0F";
                        const auto page = RunInputsPage(station);
                        EXPECT_EQ(ColumnOf(page, 1), ExpectedInputs(station, texts))
                            << algorithm << " " << source << " " << atmosphere << " " << mechanical;
                        EXPECT_EQ(ColumnOf(page, 0), Numbers(page.Rows.size()));
                    });
}

TEST(RunInputsPage, lists_an_orifice_run_with_everything_external_in_this_order) {
    auto station = WithExternalDiameters(StationWith("SYT6143-2004", "MEASURED"));
    station.SystemUnits = "Practical-SI";
    station.ExtAtmPress = "Yes";
    EXPECT_EQ(ColumnOf(RunInputsPage(station), 1),
              (Texts{"Density (kg/m^3)", "Temperature (\u00BAC)", "Pressure (MPa)",
                     "Differential Pressure (Pa)", "Atmospheric Pressure (MPa)", "Pipe diameter (mm)",
                     "Orifice diameter (mm)", "Pipe abs.roughness (mm)", "Orifice service time (year)",
                     "Flow Run / Hold", "Totalize Run / Hold", "Reset Totals"}));
}

TEST(RunInputsPage, goes_by_the_stored_source_whatever_the_flag_beside_it_says) {
    auto station = StationWith("AGA7", "MEASURED");
    station.Measured = false;
    EXPECT_EQ(ColumnOf(RunInputsPage(station), 1).front(), "Density (kg/m^3)");
    station = StationWith("AGA7", "AGA8");
    station.Measured = true;
    EXPECT_EQ(ColumnOf(RunInputsPage(station), 1).front(), "Temperature (\u00BAC)");
}

TEST(RunInputsPage, reads_the_flags_without_regard_to_case) {
    auto station = StationWith("AGA3", "AGA8");
    station.ExtAtmPress = "yes";
    station.Runs.Mechanical.front().ExtMechParam = "YES";
    const auto captions = ColumnOf(RunInputsPage(station), 1);
    ASSERT_EQ(captions.size(), 9U);
    EXPECT_EQ(captions[3], "Atmospheric Pressure (bar)");
    EXPECT_EQ(captions[4], "Pipe diameter (mm)");
}

TEST(RunInputsPage, shows_each_variable_beside_its_own_tag) {
    auto station = WithExternalDiameters(StationWith("SYT6143-2004", "MEASURED"));
    station.ExtAtmPress = "Yes";
    auto& io = station.Runs.IO.front();
    io.GasDensity = {"DENS", "FX", "1"};
    io.GasTemp = {"TEMP", "FX", "2"};
    io.GasPress = {"PRES", "FX", "3"};
    io.GasDP = {"DP", "FX", "4"};
    station.CommonPa = {"PA", "FX", "5"};
    io.Pa = {"not the run's", "FY", "99"};
    io.PipeDia = {"PIPE", "FX", "6"};
    io.OrificeDia = {"ORIF", "FX", "7"};
    io.PipeAbsRoughness = {"ROUGH", "FX", "8"};
    io.OrificeServiceTime = {"TIME", "FX", "9"};
    io.GFCRunHold = {"HOLD", "X", "10"};
    io.GFCTotalizeHold = {"TOT", "X", "11"};
    io.ResetTotals = {"RESET", "Y", "12"};
    const auto page = RunInputsPage(station);
    EXPECT_EQ(page.List, SummaryList::Tags);
    EXPECT_EQ(page.Line, "");
    EXPECT_EQ(page.Columns, TagColumns);
    EXPECT_EQ(ColumnOf(page, 2), (Texts{"DENS", "TEMP", "PRES", "DP", "PA", "PIPE", "ORIF", "ROUGH", "TIME",
                                        "HOLD", "TOT", "RESET"}));
    EXPECT_EQ(ColumnOf(page, 3), Numbers(12));
    EXPECT_EQ(page.Rows[4], (Texts{"5", "Atmospheric Pressure (bar)", "PA", "5", "FX"}));
    EXPECT_EQ(page.Rows[11], (Texts{"12", "Reset Totals", "RESET", "12", "Y"}));
}

TEST(RunInputsPage, shows_the_pulses_of_a_turbine) {
    auto station = StationWith("AGA7", "MEASURED");
    station.Runs.IO.front().GasPulseInput = {"PULSE", "LX", "21"};
    EXPECT_EQ(RunInputsPage(station).Rows.at(1),
              (Texts{"2", "Pulse Input (pulses/m^3)", "PULSE", "21", "LX"}));
}

TEST(RunInputsPage, says_not_configured_for_a_variable_without_an_address) {
    auto station = StationWith("AGA3", "AGA8");
    station.Runs.IO.front().GasPress = {"left over", "", ""};
    const auto page = RunInputsPage(station);
    EXPECT_EQ(page.Rows[0], (Texts{"1", "Temperature (\u00BAC)", "Not configured", "", ""}));
    EXPECT_EQ(page.Rows[1], (Texts{"2", "Pressure (bar)", "Not configured", "", ""}));
}

TEST(RunInputsPage, lists_an_unknown_algorithm_with_the_others) {
    EXPECT_EQ(ColumnOf(RunInputsPage(StationWith("AGA9", "AGA8")), 1),
              (Texts{"Temperature (\u00BAC)", "Pressure (bar)", "Differential Pressure (mbar)",
                     "Flow Run / Hold", "Totalize Run / Hold", "Reset Totals"}));
}

TEST(RunInputsPage, is_all_unconfigured_where_no_run_was_loaded) {
    auto station = StationWith("AGA3", "AGA8");
    station.Runs = {};
    EXPECT_EQ(ColumnOf(RunInputsPage(station), 2), Texts(6, "Not configured"));
}

TEST(RunOutputsPage, lists_four_quantities_and_the_status_of_the_algorithm) {
    const std::pair<std::string_view, std::string> statusOf[] = {{"AGA3", "AGA 3 Status"},
                                                                 {"AGA7", "AGA 7 Status"},
                                                                 {"Accelabar-AGA-3-1992", "AGA 3 Status"},
                                                                 {"SYT6143-2004", "SYT6143-2004 Status"},
                                                                 {"", "AGA 3 Status"}};
    for (const auto& [algorithm, status] : statusOf)
        for (const auto source : AllSources)
            ForEachUnits([&, &algorithm = algorithm, &status = status](auto units, const UnitTexts& texts) {
                auto station = StationWith(algorithm, source);
                station.SystemUnits = units;
                EXPECT_EQ(
                    ColumnOf(RunOutputsPage(station), 1),
                    (Texts{"Vol Flow @ Std. (" + texts.VolumeRate + ")", "Mass Flow (" + texts.MassRate + ")",
                           "Volume @ Std. (" + texts.Volume + ")", "Mass (" + texts.Mass + ")", status}))
                    << algorithm << " " << source << " " << units;
            });
}

TEST(RunOutputsPage, shows_each_variable_beside_its_own_tag) {
    for (const auto algorithm : AllAlgorithms) {
        auto station = StationWith(algorithm, "AGA8");
        auto& io = station.Runs.IO.front();
        io.StdVolFlow = {"VF", "FY", "1"};
        io.StdMassFlow = {"MF", "FY", "2"};
        io.GasVolume = {"V", "FY", "3"};
        io.GasMass = {"M", "FY", "4"};
        io.AGA3Status = {"ST", "AY", "5"};
        const auto page = RunOutputsPage(station);
        EXPECT_EQ(page.List, SummaryList::Tags);
        EXPECT_EQ(page.Columns, TagColumns);
        EXPECT_EQ(ColumnOf(page, 0), Numbers(5));
        EXPECT_EQ(ColumnOf(page, 2), (Texts{"VF", "MF", "V", "M", "ST"}));
        EXPECT_EQ(ColumnOf(page, 3), Numbers(5));
        EXPECT_EQ(ColumnOf(page, 4), (Texts{"FY", "FY", "FY", "FY", "AY"}));
    }
}

TEST(GasInputsPage, says_of_a_densimeter_just_one_line) {
    for (const auto algorithm : AllAlgorithms)
        for (const char* composition : {"MEASURED", "FIXED", ""}) {
            auto station = StationWith(algorithm, "MEASURED");
            station.AGA8CalInput = composition;
            const auto page = GasInputsPage(station);
            EXPECT_EQ(page.List, SummaryList::None);
            EXPECT_TRUE(page.Rows.empty());
            EXPECT_EQ(page.Line, "No AGA 8/SGERG 88/ISO-12213-2-1997/ISO-12213-3-1997 inputs configured. "
                                 "Density source is from external density meter");
        }
}

TEST(GasInputsPage, lists_the_tags_of_the_composition_with_the_enable_last) {
    for (const char* source : {"AGA8", "ISO-12213-2-1997"}) {
        auto station = StationWith("AGA3", source);
        auto& gas = station.Runs.Gas.front();
        for (int i = 0; i < config::Components; ++i)
            gas[static_cast<config::GasSlot>(i)] = {"C" + std::to_string(i + 1), "FX", std::to_string(i + 1)};
        gas[config::GasSlot::GCEnable] = {"ON", "X", "22"};
        const auto page = GasInputsPage(station);
        Texts captions = Components;
        captions.push_back("Enable");
        EXPECT_EQ(page.List, SummaryList::Tags);
        EXPECT_EQ(page.Columns, TagColumns);
        EXPECT_EQ(ColumnOf(page, 0), Numbers(22));
        EXPECT_EQ(ColumnOf(page, 1), captions);
        EXPECT_EQ(ColumnOf(page, 3), Numbers(22));
        EXPECT_EQ(page.Rows[7], (Texts{"8", "Hydrogen", "C8", "8", "FX"}));
        EXPECT_EQ(page.Rows[21], (Texts{"22", "Enable", "ON", "22", "X"}));
    }
}

TEST(GasInputsPage, lists_the_tags_of_the_gross_properties_with_the_enable_last) {
    for (const char* source : {"SGERG88", "ISO-12213-3-1997"})
        ForEachUnits([source](std::string_view units, const UnitTexts& texts) {
            auto station = StationWith("AGA7", source);
            station.SystemUnits = units;
            auto& gas = station.Runs.Gas.front();
            gas[config::GasSlot::VolCalorificValue] = {"HV", "FX", "1"};
            gas[config::GasSlot::RelativeDensity] = {"RD", "FX", "2"};
            gas[config::GasSlot::XCO2] = {"CO2", "FX", "3"};
            gas[config::GasSlot::XH2] = {"H2", "FX", "4"};
            EXPECT_EQ(GasInputsPage(station).Rows,
                      (SummaryRows{
                          {"1", "Vol. Calorific Value (" + texts.Heating + ")", "HV", "1", "FX"},
                          {"2", "Relative Density", "RD", "2", "FX"},
                          {"3", "CO2 content (Mole fraction)", "CO2", "3", "FX"},
                          {"4", "H2 content (Mole fraction)", "H2", "4", "FX"},
                          {"5", "Enable", "Not configured", "", ""},
                      }));
        });
}

TEST(GasInputsPage, lists_the_fixed_composition_that_a_load_leaves_in_the_station) {
    for (const char* source : {"AGA8", "ISO-12213-2-1997"}) {
        auto station = StationWith("AGA3", source);
        station.AGA8CalInput = "FIXED";
        for (int i = 0; i < config::Components; ++i) {
            station.GasComposition[static_cast<config::GasSlot>(i)].Tag = "0." + std::to_string(i + 1);
            station.Runs.Gas.front()[static_cast<config::GasSlot>(i)].Tag = "a tag's name";
        }
        SummaryRows expected = {{"1", "Fixed Gas composition (Mole fractions)", ""}};
        for (std::size_t i = 1; i <= Components.size(); ++i)
            expected.push_back({"1." + std::to_string(i), Components[i - 1], "0." + std::to_string(i)});
        const auto page = GasInputsPage(station);
        EXPECT_EQ(page.List, SummaryList::GasValues);
        EXPECT_EQ(page.Columns, (Texts{"N\u00B0", "Parameters", "Value"}));
        EXPECT_EQ(page.Rows, expected);
    }
}

TEST(GasInputsPage, lists_the_fixed_gross_properties_that_a_load_leaves_in_the_station) {
    for (const char* source : {"SGERG88", "ISO-12213-3-1997"})
        ForEachUnits([source](std::string_view units, const UnitTexts& texts) {
            auto station = StationWith("AGA3", source);
            station.SystemUnits = units;
            station.AGA8CalInput = "FIXED";
            auto& values = station.GasComposition;
            values[config::GasSlot::VolCalorificValue].Tag = "11.1";
            values[config::GasSlot::RelativeDensity].Tag = "0.6";
            values[config::GasSlot::GC_CO2].Tag = "0.01";
            values[config::GasSlot::XH2].Tag = "0.02";
            const auto page = GasInputsPage(station);
            EXPECT_EQ(page.List, SummaryList::GasValues);
            EXPECT_EQ(page.Rows, (SummaryRows{
                                     {"1", "Parameters SGERG-88", ""},
                                     {"1.1", "Vol. Calorific Value (" + texts.Heating + ")", "11.1"},
                                     {"1.2", "Relative Density", "0.6"},
                                     {"1.3", "CO2 content (Mole fraction)", "0.01"},
                                     {"1.4", "H2 content (Mole fraction)", "0.02"},
                                 }));
        });
}

TEST(GasInputsPage, writes_the_two_words_for_what_is_missing_each_in_its_own_list) {
    for (const auto source : AllSources) {
        if (source == "MEASURED")
            continue;
        auto station = StationWith("AGA3", source);
        for (const auto& name : ColumnOf(GasInputsPage(station), 2))
            EXPECT_EQ(name, "Not configured");
        station.AGA8CalInput = "FIXED";
        auto values = ColumnOf(GasInputsPage(station), 2);
        values.erase(values.begin());
        for (const auto& value : values)
            EXPECT_EQ(value, "Not Configured");
    }
}

TEST(GasInputsPage, goes_with_its_heading_where_the_choice_of_the_composition_is_missing) {
    auto station = StationWith("AGA3", "AGA8");
    station.AGA8CalInput.clear();
    EXPECT_EQ(GasInputsPage(station).List, SummaryList::Tags);
    EXPECT_EQ(GasInputsPage(station).Rows.size(), 22U);
    EXPECT_EQ(RunTabCaptions(station)[2], "AGA8/ISO-12213-2 Input Tags");
}

TEST(GasOutputsPage, says_of_a_densimeter_just_one_line) {
    const auto page = GasOutputsPage(StationWith("AGA3", "MEASURED"));
    EXPECT_EQ(page.List, SummaryList::None);
    EXPECT_TRUE(page.Rows.empty());
    EXPECT_EQ(page.Line, "No AGA 8/SGERG 88/ISO-12213-2-1997/ISO-12213-3-1997 outputs configured. "
                         "Density source is from external density meter");
}

TEST(GasOutputsPage, lists_seven_results_and_the_status_of_the_model) {
    for (const auto source : AllSources) {
        if (source == "MEASURED")
            continue;
        for (const char* composition : {"MEASURED", "FIXED"})
            ForEachUnits([&](std::string_view units, const UnitTexts& texts) {
                auto station = StationWith("AGA3", source);
                station.SystemUnits = units;
                station.AGA8CalInput = composition;
                const bool detail = source == "AGA8" || source == "ISO-12213-2-1997";
                EXPECT_EQ(ColumnOf(GasOutputsPage(station), 1),
                          (Texts{"Density @ flowing cond. (" + texts.Density + ")",
                                 "Density @ std. cond. (" + texts.Density + ")",
                                 "Compressibility factor (Z) @ flowing cond.",
                                 "Compressibility factor (Zs) @ std. cond.",
                                 "Supercompressibility factor @ std/flowing cond.", "Relative density (GRs)",
                                 "Uncertainty (%)", detail ? "AGA8 Status" : "SGERG 88 Status"}))
                    << source << " " << units;
            });
    }
}

TEST(GasOutputsPage, shows_each_variable_beside_its_own_tag) {
    for (const char* source : {"AGA8", "SGERG88"}) {
        auto station = StationWith("AGA3", source);
        auto& gas = station.Runs.Gas.front();
        gas[config::GasSlot::AGA8rhotp] = {"RHOTP", "FY", "1"};
        gas[config::GasSlot::AGA8rhos] = {"RHOS", "FY", "2"};
        gas[config::GasSlot::AGA8z] = {"Z", "FY", "3"};
        gas[config::GasSlot::AGA8zs] = {"ZS", "FY", "4"};
        gas[config::GasSlot::AGA8fpvs] = {"FPVS", "FY", "5"};
        gas[config::GasSlot::AGA8GRs] = {"GRS", "FY", "6"};
        gas[config::GasSlot::AGA8uncert] = {"UNC", "FY", "7"};
        gas[config::GasSlot::AGA8Status] = {"ST", "AY", "8"};
        const auto page = GasOutputsPage(station);
        EXPECT_EQ(page.List, SummaryList::Tags);
        EXPECT_EQ(page.Columns, TagColumns);
        EXPECT_EQ(ColumnOf(page, 0), Numbers(8));
        EXPECT_EQ(ColumnOf(page, 2), (Texts{"RHOTP", "RHOS", "Z", "ZS", "FPVS", "GRS", "UNC", "ST"}));
        EXPECT_EQ(ColumnOf(page, 3), Numbers(8));
    }
}

TEST(RunTabCaptions, name_the_flow_by_the_algorithm) {
    const std::pair<std::string_view, std::string> flowOf[] = {{"AGA3", "AGA-3"},
                                                               {"AGA7", "AGA-7"},
                                                               {"Accelabar-AGA-3-1992", "AGA-3"},
                                                               {"SYT6143-2004", "SY/T6143"},
                                                               {"", "AGA-3"}};
    for (const auto& [algorithm, flow] : flowOf)
        for (const auto source : AllSources) {
            const auto captions = RunTabCaptions(StationWith(algorithm, source));
            EXPECT_EQ(captions[0], flow + " Input Tags");
            EXPECT_EQ(captions[1], flow + " Output Tags");
        }
}

TEST(RunTabCaptions, name_the_gas_by_the_source_and_its_composition) {
    struct Case {
        std::string_view Source, Composition;
        std::string Inputs, Outputs;
    };
    const Case cases[] = {
        {"AGA8", "MEASURED", "AGA8/ISO-12213-2 Input Tags", "AGA8/ISO-12213-2 Output Tags"},
        {"AGA8", "FIXED", "AGA8/ISO-12213-2 Gas Composition", "AGA8/ISO-12213-2 Output Tags"},
        {"ISO-12213-2-1997", "MEASURED", "AGA8/ISO-12213-2 Input Tags", "AGA8/ISO-12213-2 Output Tags"},
        {"ISO-12213-2-1997", "FIXED", "AGA8/ISO-12213-2 Gas Composition", "AGA8/ISO-12213-2 Output Tags"},
        {"SGERG88", "MEASURED", "SGERG88/ISO-12213-3 Input Tags", "SGERG88/ISO-12213-3 Output Tags"},
        {"SGERG88", "FIXED", "SGERG88/ISO-12213-3 Gas Properties", "SGERG88/ISO-12213-3 Output Tags"},
        {"ISO-12213-3-1997", "MEASURED", "SGERG88/ISO-12213-3 Input Tags", "SGERG88/ISO-12213-3 Output Tags"},
        {"ISO-12213-3-1997", "FIXED", "SGERG88/ISO-12213-3 Gas Properties",
         "SGERG88/ISO-12213-3 Output Tags"},
        {"MEASURED", "", "AGA8/ISO-12213-2 Input Tags", "AGA8/ISO-12213-2 Output Tags"},
    };
    for (const auto& expected : cases) {
        auto station = StationWith("AGA3", expected.Source);
        station.AGA8CalInput = expected.Composition;
        EXPECT_EQ(RunTabCaptions(station)[2], expected.Inputs) << expected.Source;
        EXPECT_EQ(RunTabCaptions(station)[3], expected.Outputs) << expected.Source;
    }
}

TEST(RunTabCaptions, agree_with_the_pages_for_a_source_that_is_none) {
    auto station = StationWith("AGA3", "AGA9");
    station.AGA8CalInput = "FIXED";
    EXPECT_EQ(RunTabCaptions(station)[2], "SGERG88/ISO-12213-3 Gas Properties");
    EXPECT_EQ(GasInputsPage(station).Rows.front()[1], "Parameters SGERG-88");
    EXPECT_EQ(GasOutputsPage(station).Rows.back()[1], "SGERG 88 Status");
}

} // namespace

} // namespace gfc::test
