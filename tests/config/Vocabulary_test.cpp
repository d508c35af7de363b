#include "config/Units.h"
#include "config/Vocabulary.h"

#include <gmock/gmock.h>

#include <string>

namespace gfc::config {
namespace {

TEST(Vocabulary, stores_another_standards_number_than_it_shows) {
    EXPECT_EQ(StoredAlgorithm("GBT21446-2008"), "SYT6143-2004");
    EXPECT_EQ(FlowAlgorithms[3].InConfigurador, "GBT21446-2008");
}

TEST(Vocabulary, shows_the_accelabar_differently_in_wizard_and_configurator) {
    EXPECT_EQ(FlowAlgorithms[2].InWizard, "Accelabar-AGA-3 1992");
    EXPECT_EQ(FlowAlgorithms[2].InConfigurador, "Accelabar-AGA-3-1992");
}

TEST(Vocabulary, stores_the_last_algorithm_for_any_text_but_the_first_three) {
    EXPECT_EQ(StoredAlgorithm("AGA-3 1992"), "AGA3");
    EXPECT_EQ(StoredAlgorithm("AGA-7"), "AGA7");
    EXPECT_EQ(StoredAlgorithm("Accelabar-AGA-3 1992"), "Accelabar-AGA-3-1992");
    EXPECT_EQ(StoredAlgorithm(""), "SYT6143-2004");
    EXPECT_EQ(StoredAlgorithm("aga-7"), "SYT6143-2004");
}

TEST(Vocabulary, shows_aga7_for_an_unknown_algorithm) {
    EXPECT_EQ(AlgorithmIndex("AGA3"), 0);
    EXPECT_EQ(AlgorithmIndex("AGA7"), 1);
    EXPECT_EQ(AlgorithmIndex("Accelabar-AGA-3-1992"), 2);
    EXPECT_EQ(AlgorithmIndex("SYT6143-2004"), 3);
    EXPECT_EQ(AlgorithmIndex(""), 1);
    EXPECT_EQ(AlgorithmIndex("aga3"), 1);
}

TEST(Vocabulary, keeps_the_blank_at_the_end_of_the_wizards_last_source) {
    EXPECT_EQ(GasDensitySources[4].InWizard, "ISO 12213-3 1997 ");
    EXPECT_EQ(GasDensitySources[4].InConfigurador, "ISO 12213-3 1997");
    EXPECT_EQ(StoredSource("ISO 12213-3 1997 "), "ISO-12213-3-1997");
    EXPECT_EQ(StoredSource("ISO 12213-3 1997"), "");
}

TEST(Vocabulary, knows_each_source_by_its_place) {
    const char* stored[] = {"MEASURED", "AGA8", "SGERG88", "ISO-12213-2-1997", "ISO-12213-3-1997"};
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(SourceIndex(stored[i]), i);
    EXPECT_EQ(SourceIndex("measured"), -1);
}

TEST(Vocabulary, shows_each_source_by_its_caption) {
    const char* wizard[] = {"Densimeter", "AGA-8", "SGERG-88", "ISO 12213-2 1997", "ISO 12213-3 1997 "};
    const char* configurador[] = {"Densimeter", "AGA-8", "SGERG-88", "ISO 12213-2 1997", "ISO 12213-3 1997"};
    for (std::size_t i = 0; i < GasDensitySources.size(); ++i) {
        EXPECT_EQ(GasDensitySources[i].InWizard, wizard[i]);
        EXPECT_EQ(GasDensitySources[i].InConfigurador, configurador[i]);
        EXPECT_EQ(StoredSource(wizard[i]), GasDensitySources[i].Stored);
    }
}

TEST(Vocabulary, shows_each_algorithm_by_its_caption) {
    const char* wizard[] = {"AGA-3 1992", "AGA-7", "Accelabar-AGA-3 1992", "GBT21446-2008"};
    const char* configurador[] = {"AGA-3 1992", "AGA-7", "Accelabar-AGA-3-1992", "GBT21446-2008"};
    for (std::size_t i = 0; i < FlowAlgorithms.size(); ++i) {
        EXPECT_EQ(FlowAlgorithms[i].InWizard, wizard[i]);
        EXPECT_EQ(FlowAlgorithms[i].InConfigurador, configurador[i]);
    }
}

TEST(Vocabulary, sorts_sources_into_families) {
    EXPECT_EQ(FamilyOf("MEASURED"), GasFamily::Densimeter);
    EXPECT_EQ(FamilyOf("AGA8"), GasFamily::Detail);
    EXPECT_EQ(FamilyOf("ISO-12213-2-1997"), GasFamily::Detail);
    EXPECT_EQ(FamilyOf("SGERG88"), GasFamily::Gross);
    EXPECT_EQ(FamilyOf("ISO-12213-3-1997"), GasFamily::Gross);
    EXPECT_EQ(FamilyOf("aga8"), GasFamily::Densimeter);
    EXPECT_TRUE(IsGasModel("SGERG88"));
    EXPECT_FALSE(IsGasModel("MEASURED"));
    EXPECT_FALSE(IsGasModel(""));
}

TEST(Vocabulary, counts_a_pulse_meter_and_the_unknown_among_no_orifice_algorithm) {
    for (const char* algorithm : {"AGA3", "Accelabar-AGA-3-1992", "SYT6143-2004"})
        EXPECT_TRUE(IsOrificeAlgorithm(algorithm)) << algorithm;
    EXPECT_FALSE(IsOrificeAlgorithm("AGA7"));
    EXPECT_FALSE(IsOrificeAlgorithm(""));
}

TEST(Units, of_an_unknown_system_are_practical_si) {
    EXPECT_EQ(UnitsIndex("SI"), 4);
    EXPECT_EQ(UnitsIndex("us"), 4);
    EXPECT_EQ(UnitCaption(Quantity::HeatingValue, "SI"), "MJ/m^3");
    EXPECT_EQ(DefaultsOf("").StandardT, "20.00");
}

TEST(Units, caption_each_quantity_in_each_system) {
    const char* systems[] = {"US", "US-degC", "Metric", "Metric-degF", "Practical-SI"};
    const struct {
        Quantity Of;
        const char* In[5];
    } table[] = {
        {Quantity::Length, {"in", "in", "mm", "mm", "mm"}},
        {Quantity::Temperature, {"\u00BAF", "\u00BAC", "\u00BAC", "\u00BAF", "\u00BAC"}},
        {Quantity::AbsolutePressure, {"psia", "psia", "bar", "bar", "MPa"}},
        {Quantity::DifferentialPressure,
         {"in H2O at 60\u00B0F", "in H2O at 60\u00B0F", "mbar", "mbar", "Pa"}},
        {Quantity::Density, {"lbm/ft^3", "lbm/ft^3", "kg/m^3", "kg/m^3", "kg/m^3"}},
        {Quantity::Volume, {"scf", "scf", "sm^3", "sm^3", "m^3"}},
        {Quantity::VolumeRate, {"ft^3/hr", "ft^3/hr", "m^3/hr", "m^3/hr", "m^3/s"}},
        {Quantity::Mass, {"lbm", "lbm", "kg", "kg", "kg"}},
        {Quantity::MassRate, {"lbm/hr", "lbm/hr", "kg/hr", "kg/hr", "kg/s"}},
        {Quantity::MeterFactor, {"pulses/ft^3", "pulses/ft^3", "pulses/m^3", "pulses/m^3", "pulses/m^3"}},
        {Quantity::ExpansionCoefficient,
         {"in/in \u00BAF", "in/in \u00BAF", "mm/mm \u00BA C", "mm/mm \u00BAC", "mm/mm \u00BAC"}},
        {Quantity::HeatingValue, {"Btu/ft^3", "Btu/ft^3", "KWh/m^3", "KWh/m^3", "MJ/m^3"}},
    };
    for (const auto& row : table)
        for (int i = 0; i < 5; ++i)
            EXPECT_EQ(UnitCaption(row.Of, systems[i]), row.In[i]) << systems[i];
}

// Deliberately in "US" alone: the other system asks for a text that is never stored.
TEST(Units, take_water_at_68_degrees_for_an_accelabar_in_us_only) {
    const auto caption = [](const char* system, const char* algorithm) {
        return UnitCaption(Quantity::DifferentialPressure, system, algorithm);
    };
    EXPECT_EQ(caption("US", "Accelabar-AGA-3-1992"), "in H2O at 68\u00B0F");
    EXPECT_EQ(caption("US", "AGA3"), "in H2O at 60\u00B0F");
    EXPECT_EQ(caption("US-degC", "Accelabar-AGA-3-1992"), "in H2O at 60\u00B0F");
    EXPECT_EQ(caption("Metric", "Accelabar-AGA-3-1992"), "mbar");
    EXPECT_EQ(UnitCaption(Quantity::Length, "US", "Accelabar-AGA-3-1992"), "in");
}

TEST(Units, start_with_the_defaults_of_their_system) {
    const struct {
        const char* System;
        UnitDefaults Expected;
    } table[] = {
        {"US", {"60.00", "14.73", "\u00BAF", "psia", "PSI", "psi", "14.695949", "cP"}},
        {"US-degC", {"15.5556", "14.73", "\u00BAC", "psia", "PSI", "psi", "14.695949", "cP"}},
        {"Metric", {"15.00", "1.01325", "\u00BAC", "bar", "bar", "bar", "1.01325", "cP"}},
        {"Metric-degF", {"59.00", "1.01325", "\u00BAF", "bar", "bar", "bar", "1.01325", "cP"}},
        {"Practical-SI", {"20.00", "0.101325", "\u00BAC", "MPa", "MPa", "MPa", "0.101325", "mPa-s"}},
    };
    for (const auto& [system, expected] : table) {
        const UnitDefaults& defaults = DefaultsOf(system);
        EXPECT_EQ(defaults.StandardT, expected.StandardT) << system;
        EXPECT_EQ(defaults.StandardP, expected.StandardP) << system;
        EXPECT_EQ(defaults.TemperatureCaption, expected.TemperatureCaption) << system;
        EXPECT_EQ(defaults.PressureCaption, expected.PressureCaption) << system;
        EXPECT_EQ(defaults.AtmCaptionInWizard, expected.AtmCaptionInWizard) << system;
        EXPECT_EQ(defaults.AtmCaptionInConfigurador, expected.AtmCaptionInConfigurador) << system;
        EXPECT_EQ(defaults.AtmPress, expected.AtmPress) << system;
        EXPECT_EQ(defaults.ViscosityCaption, expected.ViscosityCaption) << system;
    }
}

} // namespace
} // namespace gfc::config
