#include "SampleStation.h"
#include "audit/GasTables.h"
#include "binding/Catalogue.h"
#include "config/RunLayout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>

// Nothing is found where nothing is wrong.
namespace gfc::audit {
namespace {

using test::SampleChoices;
using test::SampleStation;

std::string Worse(const Findings& findings) {
    std::string text;
    for (const Finding& finding : findings)
        if (finding.Severity != Severity::Note)
            text += std::string(finding.Row().Name) + ": " + finding.Text + "\n";
    return text;
}

std::string Fraction(const ReferenceGas& gas, config::GasSlot slot) {
    char text[16];
    std::snprintf(text, sizeof text, "%.6f", gas.Percent[static_cast<std::size_t>(slot)] / 100);
    return text;
}

TEST(SoundStation, has_no_error_and_no_warning_under_any_choices) {
    int count = 0;
    for (const auto& algorithm : config::FlowAlgorithms)
        for (const auto& source : config::GasDensitySources)
            for (const auto& units : config::UnitSystems) {
                const int way = count++ * 5 % 12; // every way with every algorithm
                const SampleChoices choices{algorithm.Stored, source.Stored, units.Stored, way % 2 == 1,
                                            way % 4 >= 2,     way / 4 == 1,  way / 4 == 2, {2, 5}};
                ASSERT_EQ(Worse(SampleStation(choices).Check().Findings), "")
                    << algorithm.Stored << " " << source.Stored << " " << units.Stored << " " << way;
            }
    EXPECT_EQ(count, 4 * 5 * 5);
}

TEST(SoundStation, has_none_without_its_tags_either) {
    EXPECT_EQ(Worse(SampleStation().CheckWithoutTags().Findings), "");
}

TEST(PublishedGases, are_sound_for_AGA8_and_ISO_12213) {
    for (const auto source : {config::source::AGA8, config::source::ISO12213_2})
        for (const ReferenceGas& gas : ReferenceGases()) {
            SampleStation station(SampleChoices{.Source = source, .Runs = {1}});
            for (const config::RunRow& row : config::RunRows())
                if (row.Group == 'T')
                    station.Set("Run1", row.Name, Fraction(gas, std::get<config::GasValue>(row.Field).Slot));
            const auto findings = station.Check().Findings;
            EXPECT_EQ(Worse(findings), "") << gas.Name;
            const auto nearest = std::ranges::find(findings, RuleId::GasNearest, &Finding::Rule);
            ASSERT_NE(nearest, findings.end());
            EXPECT_EQ(nearest->Text, "The nearest of the published reference gases is " +
                                         std::string(gas.Name) + ", 0 mol % off.");
        }
}

std::string WithoutBlanks(std::string_view caption) {
    std::string name(caption);
    std::ranges::replace(name, ' ', '_');
    return name;
}

// Whoever calls the tags as the program calls the variables has made no mistake.
TEST(SoundStation, may_name_its_tags_as_the_program_names_its_variables) {
    for (const auto caption : {&binding::Captions::Tree, &binding::Captions::Summary})
        for (const auto& algorithm : config::FlowAlgorithms)
            for (const auto source : {config::source::AGA8, config::source::SGERG88}) {
                SampleStation station(SampleChoices{
                    .Algorithm = algorithm.Stored, .Source = source, .Chromatograph = true, .Runs = {1}});
                for (const binding::VariableRow& row : binding::Catalogue())
                    if (!station.Value("Run1", std::string(row.Stem) + "Type").empty())
                        station.Name("Run1", row.Stem, "Run1_" + WithoutBlanks(row.Captions.*caption));
                EXPECT_EQ(Worse(station.Check().Findings), "") << algorithm.Stored << " " << source;
            }
}

} // namespace
} // namespace gfc::audit
