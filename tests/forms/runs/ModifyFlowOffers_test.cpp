// The tags that the flow offers.
#include "ModifyWorld.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

// The names that a list of TagRuns offers.
std::vector<std::string> Offered(Driver& eyes, const std::string& list) {
    std::vector<std::string> names;
    for (int row = 1; row <= eyes.Rows("TagRuns", list); ++row)
        names.push_back(eyes.Cell("TagRuns", list, row, 1));
    return names;
}

} // namespace

TEST(ModifyFlowOffers, offers_no_tag_that_the_file_uses) {
    ModifyWorld world;
    const std::string ofRun4 = world.Key("Run4", "GasTempKDIOTag");
    const std::string digital = world.Key("Run4", "ResetTotalsKDIOTag");
    world.TickAndAccept({1});
    world.TheStory.Check([&](Driver& eyes) {
        const auto floats = Offered(eyes, "ListViewRuns");
        EXPECT_THAT(floats, Not(Contains(ofRun4)));
        EXPECT_THAT(floats, Not(Contains("FT-1"))); // its own
        EXPECT_THAT(floats, Not(Contains("FLOG-1")));
        EXPECT_EQ(floats.size(), 300U - 2 * 14);
        const auto digitals = Offered(eyes, "ListAnalogDig");
        EXPECT_THAT(digitals, Not(Contains(digital)));
        EXPECT_EQ(digitals.size(), 80U - 2 * 3);
    });
    world.CancelTags();
    world.Play();
}

TEST(ModifyFlowOffers, offers_the_analog_tags_that_are_free) {
    ModifyWorld world;
    world.TickAndAccept({2});
    world.TheStory.Check([&](Driver& eyes) {
        const auto analogs = Offered(eyes, "ListAnalogDig");
        EXPECT_EQ(analogs.size(), 40U - 2 * 2);
        EXPECT_EQ(analogs.front(), "AI-5");
    });
    world.CancelTags();
    world.Play();
}

TEST(ModifyFlowOffers, offers_the_free_pulse_counters_of_a_turbine) {
    ModifyWorld world({"AGA7", "MEASURED"});
    world.TickAndAccept({1});
    world.TheStory.Check([&](Driver& eyes) {
        EXPECT_THAT(Offered(eyes, "ListLong"),
                    ElementsAre("PI-3", "PI-4", "PI-5", "PI-6", "PI-7", "PI-8", "PI-9", "PI-10"));
    });
    world.CancelTags();
    world.Play();
}

TEST(ModifyFlowOffers, keeps_the_tags_of_the_stored_working_modules_back) {
    ModifyWorld world;
    world.Put("FlowRuns", "WrkFloatModName", "VF1");
    world.TickAndAccept({1});
    world.TheStory.Check([&](Driver& eyes) {
        const auto floats = Offered(eyes, "ListViewRuns");
        EXPECT_EQ(floats.size(), 128U);
        EXPECT_EQ(floats.front(), "FLOG-1");
    });
    world.CancelTags();
    world.Play();
}

TEST(ModifyFlowOffers, returns_an_undone_tag_to_the_end_of_the_list) {
    ModifyWorld world;
    world.TickAndAccept({1});
    const std::string node = "AGA 3 Inputs\\Temperature";
    world.TheStory.ClickNode("TagRuns", "TreeAGA", node)
        .Click("TagRuns", "Command4")
        .Check([&](Driver& eyes) {
            const auto floats = Offered(eyes, "ListViewRuns");
            EXPECT_EQ(floats.back(), "FT-1");
            EXPECT_EQ(eyes.NodeImage("TagRuns", "TreeAGA", node), "NoConfig");
        });
    world.CancelTags();
    world.Play();
}

TEST(ModifyFlowOffers, offers_a_tag_that_an_earlier_window_has_freed) {
    ModifyWorld world;
    world.TickAndAccept({1, 2});
    world.Rebind(0, "ListViewRuns"); // FT-1, the temperature's, is free now
    world.Continue();
    world.TheStory.Check([&](Driver& eyes) { EXPECT_EQ(Offered(eyes, "ListViewRuns").back(), "FT-1"); });
    world.CancelTags();
    world.Play();
}

TEST(ModifyFlowOffers, are_taken_for_a_whole_composition_at_once) {
    ModifyWorld world({"AGA3", "AGA8", "MEASURED"});
    world.TickAndAccept({5});
    // One by one is not possible here; all go back, and the first on offer come in their place.
    world.TheStory.SeeEnabled("TagRuns", "Command1", false)
        .SeeEnabled("TagRuns", "Command4", false)
        .Click("TagRuns", "Command3")
        .Click("TagRuns", "Command6")
        .Box("Automatic Tags assignments", "", ui::Icon::Information);
    world.Continue();
    world.SaveAfterTrial();
    world.Play();
    // 35 floats of each run, and four digitals, are in use.
    EXPECT_EQ(world.Key("Run2", "GC_C1KDIOTag"), "FT-71");
    EXPECT_EQ(world.Key("Run2", "GC_ArKDIOTag"), "FT-91");
    EXPECT_EQ(world.Key("Run2", "GCEnableKDIOTag"), "XS-9");
    EXPECT_EQ(world.Key("Run4", "GC_C1KDIOTag"), "FT-43");
}

TEST(ModifyFlowOffers, do_not_count_for_a_composition_that_is_copied_from_the_file) {
    ModifyWorld world({"AGA3", "AGA8", "MEASURED"});
    world.TickAndAccept({5});
    world.TheStory.SeeVisible("TagRuns", "Option1_0", false)
        .SeeVisible("TagRuns", "Option1_1", false)
        .Click("TagRuns", "Command3")
        .Click("TagRuns", "Option1_3")
        .Click("TagRuns", "CopyGasCompButton");
    world.Continue();
    world.SaveAfterTrial();
    world.Play();
    EXPECT_EQ(world.Key("Run2", "GC_C1KDIOTag"), world.Key("Run4", "GC_C1KDIOTag"));
    EXPECT_EQ(world.Key("Run2", "GCEnableKDIORegAddr"), world.Key("Run4", "GCEnableKDIORegAddr"));
}

} // namespace gfc::test
