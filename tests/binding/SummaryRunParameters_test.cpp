#include "SummaryUnderTest.h"
#include "binding/SummaryRun.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using namespace binding;

config::StationConfig Filled(std::string_view algorithm, std::string_view source) {
    config::StationConfig station = StationWith(algorithm, source);
    station.PressType = "Gage";
    station.ExtAtmPress = "No";
    station.AtmPress = "1.01";
    auto& run = station.Runs.Mechanical.front();
    run.OrificeDia = "193.675";
    run.OrificeDiaRefTemp = "20.00";
    run.OrificeMaterial = "SS";
    run.OrificeThermalExpCoeff = "0.0000167";
    run.InternalPipeDia = "363.513";
    run.InternalPipeDiaRefTemp = "21.00";
    run.PipeMaterial = "Other";
    run.PipeThermalExpCoeff = "0.0000112";
    run.PressureTap = "Pipe";
    run.PressureTapPos = "Down";
    run.ExtMechParam = "No";
    run.AccelabarSize = "4";
    run.AccelabarY = "0.3";
    run.AccelabarK = "0.7";
    run.AccelabarThroatDia = "2.5";
    run.PressType = "the run's copy";
    run.AtmPress = "the run's copy";
    return station;
}

constexpr std::string_view OrificeAlgorithms[] = {"AGA3", "SYT6143-2004"};

TEST(RunParametersPage, lists_plate_pipe_tap_and_pressure_in_every_unit_system) {
    for (const auto algorithm : OrificeAlgorithms)
        for (const auto source : AllSources)
            ForEachUnits([&](std::string_view units, const UnitTexts& texts) {
                auto station = Filled(algorithm, source);
                station.SystemUnits = units;
                const auto page = RunParametersPage(station);
                EXPECT_EQ(page.List, SummaryList::Parameters);
                EXPECT_EQ(page.Columns, (Texts{"N\u00B0", "Parameters", "Value"}));
                EXPECT_EQ(page.Rows, (SummaryRows{
                                         {"1", "Orifice Plate", ""},
                                         {"1.1", "Internal Dia.", "193.675 " + texts.Length},
                                         {"1.2", "Ref. Temperature", "20.00 " + texts.Temperature},
                                         {"1.3", "Material", "SS"},
                                         {"1.4", "Thermal Coefficient", "0.0000167 " + texts.Expansion},
                                         {"2", "Pipe", ""},
                                         {"2.1", "Internal Dia.", "363.513 " + texts.Length},
                                         {"2.2", "Ref. Temperature", "21.00 " + texts.Temperature},
                                         {"2.3", "Material", "Other"},
                                         {"2.4", "Thermal Coefficient", "0.0000112 " + texts.Expansion},
                                         {"3", "Pressure Tap", ""},
                                         {"3.1", "Type", "Pipe"},
                                         {"3.2", "Location", "Down"},
                                         {"4", "Pressure Measurement", ""},
                                         {"4.1", "Type", "Gage"},
                                         {"4.2", "Atmospheric Pressure", "1.01 " + texts.Pressure},
                                     }))
                    << algorithm << " " << source << " " << units;
            });
}

TEST(RunParametersPage, says_external_for_diameters_and_their_temperatures_that_come_from_tags) {
    for (const auto algorithm : OrificeAlgorithms)
        for (const char* yes : {"Yes", "yes"}) {
            auto station = Filled(algorithm, "AGA8");
            station.Runs.Mechanical.front().ExtMechParam = yes;
            const auto page = RunParametersPage(station);
            for (const char* number : {"1.1", "1.2", "2.1", "2.2"})
                EXPECT_EQ(ValueAt(page, number), "External I/O") << number;
            EXPECT_EQ(ValueAt(page, "1.3"), "SS");
            EXPECT_EQ(ValueAt(page, "1.4"), "0.0000167 mm/mm \u00BA C");
            EXPECT_EQ(ValueAt(page, "2.3"), "Other");
            EXPECT_EQ(ValueAt(page, "2.4"), "0.0000112 mm/mm \u00BA C");
        }
}

TEST(RunParametersPage, says_not_configured_for_what_was_never_set_and_nothing_beside_a_heading) {
    for (const auto algorithm : OrificeAlgorithms)
        for (const auto& row : RunParametersPage(StationWith(algorithm, "AGA8")).Rows)
            EXPECT_EQ(row[2], row[0].size() == 1 ? "" : "Not Configured") << row[0];
}

TEST(RunParametersPage, says_from_where_the_atmospheric_pressure_comes) {
    for (const std::string_view algorithm : {"AGA3", "SYT6143-2004", "AGA7"}) {
        const std::string number = algorithm == "AGA7" ? "1.2" : "4.2";
        auto station = Filled(algorithm, "AGA8");
        EXPECT_EQ(ValueAt(RunParametersPage(station), number), "1.01 bar");
        station.ExtAtmPress = "Yes";
        EXPECT_EQ(ValueAt(RunParametersPage(station), number), "External I/O");
        station.PressType = "Absolute";
        EXPECT_EQ(ValueAt(RunParametersPage(station), number), "Not Applicable");
        station.ExtAtmPress = "No";
        EXPECT_EQ(ValueAt(RunParametersPage(station), number), "Not Applicable");
    }
}

TEST(RunParametersPage, lists_an_accelabar_in_inches_and_numbers_it_from_1_2_in_every_unit_system) {
    for (const auto source : AllSources)
        for (const auto units : AllUnits) {
            auto station = Filled("Accelabar-AGA-3-1992", source);
            station.SystemUnits = units;
            EXPECT_EQ(RunParametersPage(station).Rows,
                      (SummaryRows{
                          {"1", "Accelabar Parameters", ""},
                          {"1.2", "Accelabar Size (in)", "4"},
                          {"1.3", "Gas expansion factor coeff. (Ya-coeff)", "0.3"},
                          {"1.4", "Flow coefficient ( K )", "0.7"},
                          {"1.5", "Accelabar Throat Dia. (in)", "2.5"},
                      }));
        }
}

TEST(RunParametersPage, writes_not_configured_for_an_accelabar_as_the_tag_lists_do) {
    const auto page = RunParametersPage(StationWith("Accelabar-AGA-3-1992", "AGA8"));
    EXPECT_EQ(ColumnOf(page, 2),
              (Texts{"", "Not configured", "Not configured", "Not configured", "Not configured"}));
}

TEST(RunParametersPage, has_no_pressure_for_a_turbine_with_a_densimeter) {
    auto station = Filled("AGA7", "MEASURED");
    station.ExtAtmPress = "Yes";
    EXPECT_EQ(RunParametersPage(station).Rows, (SummaryRows{
                                                   {"1", "Pressure Measurement", ""},
                                                   {"1.1", "Type", "Not Applicable"},
                                                   {"1.2", "Atmospheric Pressure", "Not Applicable"},
                                               }));
}

TEST(RunParametersPage, lists_the_pressure_of_a_turbine_with_a_calculated_density) {
    for (const auto source : AllSources) {
        if (source == "MEASURED")
            continue;
        ForEachUnits([source](std::string_view units, const UnitTexts& texts) {
            auto station = Filled("AGA7", source);
            station.SystemUnits = units;
            EXPECT_EQ(RunParametersPage(station).Rows,
                      (SummaryRows{
                          {"1", "Pressure Measurement", ""},
                          {"1.1", "Type", "Gage"},
                          {"1.2", "Atmospheric Pressure", "1.01 " + texts.Pressure},
                      }));
        });
    }
}

TEST(RunParametersPage, is_unconfigured_where_no_run_was_loaded) {
    auto station = Filled("AGA3", "AGA8");
    station.Runs = {};
    EXPECT_EQ(ValueAt(RunParametersPage(station), "1.1"), "Not Configured");
    EXPECT_EQ(ValueAt(RunParametersPage(station), "4.1"), "Gage");
}

TEST(RunParametersPage, is_an_empty_table_for_an_unknown_algorithm) {
    const auto page = RunParametersPage(Filled("AGA9", "AGA8"));
    EXPECT_EQ(page.List, SummaryList::Parameters);
    EXPECT_EQ(page.Columns.size(), 3U);
    EXPECT_TRUE(page.Rows.empty());
}

} // namespace

} // namespace gfc::test
