#include "audit/Figures.h"
#include "audit/Plausible.h"
#include "audit/Ranges.h"
#include "config/RunLayout.h"
#include "config/Vocabulary.h"

#include <gmock/gmock.h>

namespace gfc::audit {
namespace {

using testing::StartsWith;

config::StationConfig StationIn(std::string_view units, std::string_view algorithm = config::algorithm::AGA3,
                                std::string_view source = config::source::AGA8) {
    config::StationConfig station;
    station.SystemUnits = units;
    station.FlowAlgorithm = algorithm;
    station.GasDensitySource = source;
    return station;
}

TEST(Figure, has_six_digits_and_no_power_of_ten) {
    for (const auto& [value, text] : {std::pair{0.0, "0"},
                                      {1.0, "1"},
                                      {2.90039, "2.90039"},
                                      {0.0374567891, "0.0374568"},
                                      {5e-7, "0.0000005"},
                                      {40e-6, "0.00004"},
                                      {1e6, "1000000"},
                                      {1234567.8, "1234568"},
                                      {99.9999999, "100"},
                                      {-0.5, "-0.5"}})
        EXPECT_EQ(Figure(value), text);
}

TEST(ExpectedText, has_range_and_unit_of_the_stations_unit_system) {
    const auto us = StationIn(config::units::US);
    EXPECT_EQ(ExpectedText("OrificeDiaRefTemp", us), "Usual: 32 to 122 \xC2\xBA"
                                                     "F");
    EXPECT_EQ(ExpectedText("InternalPipeDia", us), "By the standard: 1.687 to 60 in");
    EXPECT_EQ(ExpectedText("OrificeDia", us), "By the standard: above 0.45 in, and 0.1 to 0.75 of the pipe");
    const auto metric = StationIn(config::units::Metric, config::algorithm::SYT6143);
    EXPECT_EQ(ExpectedText("InternalPipeDia", metric), "By the standard: 50 to 1000 mm");
    EXPECT_EQ(ExpectedText("CalibrationFactor", metric), "Usual: 0.9 to 1.1");
}

// 55 and 110 kPa, 0.6 and 2 kg/m3, and 0.5 to 40 millionths for one degree Celsius.
TEST(ExpectedText, turns_each_quantity_into_the_stations_units) {
    struct Case {
        std::string_view Units;
        const char *Pressure, *Density, *Expansion;
    };
    for (const auto& [units, pressure, density, expansion] :
         {Case{config::units::US, "7.97708 to 15.9542", "0.0374568 to 0.124856",
               "0.000000277778 to 0.0000222222"},
          Case{config::units::Metric, "0.55 to 1.1", "0.6 to 2", "0.0000005 to 0.00004"},
          Case{config::units::PracticalSI, "0.055 to 0.11", "0.6 to 2", "0.0000005 to 0.00004"}}) {
        const auto station = StationIn(units);
        EXPECT_THAT(ExpectedText("AtmPress", station), StartsWith("Usual: " + std::string(pressure) + " "));
        EXPECT_THAT(ExpectedText("GasDensityStandard", station),
                    StartsWith("Usual: " + std::string(density) + " "));
        for (const char* key : {"OrificeThermalExpCoeff", "PipeThermalExpCoeff"})
            EXPECT_THAT(ExpectedText(key, station), StartsWith("Usual: " + std::string(expansion) + " "));
    }
}

TEST(ExpectedText, knows_the_components_by_the_standard_of_the_source) {
    const auto aga8 = StationIn(config::units::US);
    const auto iso = StationIn(config::units::US, config::algorithm::AGA3, config::source::ISO12213_2);
    EXPECT_EQ(ExpectedText("GC_C1", aga8), "Mole fraction. By the standard: 0.45 to 1");
    EXPECT_NE(ExpectedText("GC_C1", aga8), ExpectedText("GC_C1", iso));
    EXPECT_EQ(ExpectedText("RelativeDensity", aga8), "By the standard: 0.55 to 0.8");
    EXPECT_EQ(ExpectedText("meterKFactor", aga8), "Usual: 0.001 to 1000000");
    EXPECT_EQ(ExpectedText("UserID", aga8), "");
}

// In inches whatever the station's units.
TEST(ExpectedText, says_what_the_listed_sizes_of_an_accelabar_have) {
    const auto metric = StationIn(config::units::Metric, config::algorithm::Accelabar);
    EXPECT_EQ(ExpectedText("AccelabarY", metric), "Above 0. Of the listed sizes: 0.5891 to 0.7432");
    EXPECT_EQ(ExpectedText("AccelabarK", metric), "Above 0. Of the listed sizes: 0.6566 to 0.7455");
    EXPECT_EQ(ExpectedText("AccelabarThroatDia", metric), "Above 0. Of the listed sizes: 1.289 to 5.056 in");
}

// The tip and the judgement are of one table: what lies within is not found, what lies beyond is.
TEST(ExpectedText, is_what_the_values_are_judged_by) {
    const auto station = StationIn(config::units::Metric);
    for (const auto& [text, found] : {std::pair{"50", false}, {"51", true}, {"0", false}}) {
        config::RunMechanical mechanical;
        mechanical.OrificeDiaRefTemp = text;
        Findings findings;
        Sink sink(findings);
        CheckMechanicalValues(station, mechanical, sink);
        EXPECT_EQ(!findings.empty(), found) << text;
    }
    EXPECT_EQ(ExpectedText("OrificeDiaRefTemp", station).substr(0, 14), "Usual: 0 to 50");
}

} // namespace
} // namespace gfc::audit
