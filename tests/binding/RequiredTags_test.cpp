#include "StationUnderTest.h"
#include "binding/RequiredTags.h"

#include <gtest/gtest.h>

using namespace gfc;
using namespace gfc::binding;
using namespace gfc::test;
using enum BindingStage;
namespace algorithm = config::algorithm;
namespace source = config::source;

namespace gfc::binding {
void PrintTo(const TagCounts& counts, std::ostream* out) {
    *out << counts.Float << " float, " << counts.Analog << " analog, " << counts.Digital << " digital, "
         << counts.Long << " long";
}
} // namespace gfc::binding

namespace {

TagCounts CountTree(BindingStage stage, config::StationConfig station) {
    TagCounts counts;
    int TagCounts::*const members[] = {&TagCounts::Float, &TagCounts::Long, &TagCounts::Analog,
                                       &TagCounts::Digital};
    for (const auto& variable : VariablesOf(stage, station, 0))
        counts.*members[static_cast<std::size_t>(variable.Class())] += 1;
    return counts;
}

} // namespace

TEST(RequiredTags, of_AGA3_with_diameters_are_six_floats_with_densimeter_and_five_without) {
    EXPECT_EQ(CountRequiredTags(WithExternalDiameters(StationWith(algorithm::AGA3, source::Measured)), 0, 1),
              (TagCounts{.Float = 6, .Digital = 3}));
    EXPECT_EQ(CountRequiredTags(WithExternalDiameters(StationWith(algorithm::AGA3, source::AGA8)), 0, 1),
              (TagCounts{.Float = 5, .Digital = 3}));
}

TEST(RequiredTags, of_AGA7_with_densimeter_are_one_float_one_long_three_digital) {
    EXPECT_EQ(CountRequiredTags(StationWith(algorithm::AGA7, source::Measured), 0, 1),
              (TagCounts{.Float = 1, .Digital = 3, .Long = 1}));
    EXPECT_EQ(CountRequiredTags(StationWith(algorithm::AGA7, source::AGA8), 0, 1),
              (TagCounts{.Float = 2, .Digital = 3, .Long = 1}));
}

TEST(RequiredTags, of_SYT6143_always_count_roughness_and_service_time) {
    EXPECT_EQ(CountRequiredTags(StationWith(algorithm::SYT6143, source::AGA8), 0, 1),
              (TagCounts{.Float = 5, .Digital = 3}));
    EXPECT_EQ(CountRequiredTags(WithExternalDiameters(StationWith(algorithm::SYT6143, source::AGA8)), 0, 1),
              (TagCounts{.Float = 7, .Digital = 3}));
}

TEST(RequiredTags, of_the_other_kinds_do_not_depend_on_the_standard) {
    for (const auto standard : AllAlgorithms) {
        const auto detail = StationWith(standard, source::ISO12213_2);
        const auto gross = StationWith(standard, source::SGERG88);
        EXPECT_EQ(CountRequiredTags(detail, 0, 2), (TagCounts{.Float = 4, .Analog = 1}));
        EXPECT_EQ(CountRequiredTags(detail, 0, 3), (TagCounts{.Float = 21, .Digital = 1}));
        EXPECT_EQ(CountRequiredTags(gross, 0, 3), (TagCounts{.Float = 4, .Digital = 1}));
        EXPECT_EQ(CountRequiredTags(gross, 0, 4), (TagCounts{.Float = 7, .Analog = 1}));
    }
}

TEST(RequiredTags, of_the_gas_are_none_with_densimeter_and_no_inputs_with_fixed_composition) {
    const auto measured = StationWith(algorithm::AGA3, source::Measured);
    EXPECT_EQ(CountRequiredTags(measured, 0, 3), TagCounts{});
    EXPECT_EQ(CountRequiredTags(measured, 0, 4), TagCounts{});
    auto fixed = StationWith(algorithm::AGA3, source::AGA8);
    fixed.AGA8CalInput = config::CompositionFixed;
    EXPECT_EQ(CountRequiredTags(fixed, 0, 3), TagCounts{});
    EXPECT_EQ(CountRequiredTags(fixed, 0, 4).Total(), 8);
}

TEST(RequiredTags, of_an_unknown_standard_or_source_are_what_every_run_has) {
    EXPECT_EQ(CountRequiredTags(StationWith("", source::AGA8), 0, 1), (TagCounts{.Digital = 3}));
    EXPECT_EQ(CountRequiredTags(StationWith("", source::Measured), 0, 1),
              (TagCounts{.Float = 1, .Digital = 3}));
    EXPECT_EQ(CountRequiredTags(StationWith(algorithm::AGA3, ""), 0, 3), (TagCounts{.Digital = 1}));
}

TEST(RequiredTags, of_kind_five_are_the_sum_of_all) {
    EXPECT_EQ(CountRequiredTags(StationWith(algorithm::AGA7, source::AGA8), 0, 5),
              (TagCounts{.Float = 2 + 4 + 21 + 7, .Analog = 2, .Digital = 4, .Long = 1}));
    EXPECT_EQ(CountRequiredTags(StationWith(algorithm::AGA3, source::Measured), 0, 5),
              (TagCounts{.Float = 4 + 4, .Analog = 1, .Digital = 3}));
    for (const int kind : {-1, 0, 6})
        EXPECT_EQ(CountRequiredTags(StationWith(algorithm::AGA3, source::AGA8), 0, kind), TagCounts{});
}

TEST(RequiredTags, agree_with_the_tree_for_every_choice) {
    for (const auto standard : AllAlgorithms)
        for (const auto density : AllSources)
            for (const bool external : {false, true}) {
                if (external && standard == algorithm::Accelabar)
                    continue;
                auto station = StationWith(standard, density);
                if (external)
                    station = WithExternalDiameters(station);
                station.ExtAtmPress = config::Yes;
                for (const auto stage : {RunInputs, RunOutputs, GasOutputs, GasInputs, CommonInputs})
                    EXPECT_EQ(NeededTags(stage, station, 0), CountTree(stage, station))
                        << standard << ", " << density << ", stage " << static_cast<int>(stage);
            }
}

// Deliberate: the count does not look at an option that the Accelabar does not have, and the tree does.
TEST(RequiredTags, are_two_less_than_the_tree_for_an_Accelabar_run_with_a_left_over_option) {
    const auto station = WithExternalDiameters(StationWith(algorithm::Accelabar, source::AGA8));
    EXPECT_EQ(NeededTags(RunInputs, station, 0), (TagCounts{.Float = 3, .Digital = 3}));
    EXPECT_EQ(CountTree(RunInputs, station), (TagCounts{.Float = 5, .Digital = 3}));
}

TEST(RequiredTags, of_the_common_inputs_are_one_float_whatever_the_choices) {
    EXPECT_EQ(NeededTags(CommonInputs, StationWith(algorithm::AGA7, source::Measured), 3),
              (TagCounts{.Float = 1}));
    EXPECT_EQ(NeededTags(BindingStage::None, StationWith(algorithm::AGA7, source::Measured), 0), TagCounts{});
}

TEST(RequiredTags, look_at_the_option_of_the_run_they_are_asked_for) {
    auto station = StationWith(algorithm::AGA3, source::AGA8);
    station.Runs.Mechanical[1].ExtMechParam = config::Yes;
    EXPECT_EQ(CountRequiredTags(station, 0, 1).Float, 3);
    EXPECT_EQ(CountRequiredTags(station, 1, 1).Float, 5);
    EXPECT_EQ(CountRequiredTags(station, 7, 1).Float, 3);
}
