// What a run that is added finds free, and what it takes over from the runs that are there.
#include "AddRunWorld.h"

namespace gfc::test {

namespace {

using ui::Answer;
using ui::Icon;

TEST(AddRun, two_runs_one_after_the_other_take_different_tags) {
    AddRunWorld world("aga3_densimeter", {});
    world.AddAndSave();
    const AddRunStory fourth({.Run = 4});
    world.Choose(4, "erun");
    world.OfferToConfigure(Answer::Yes);
    fourth.Through(world.TheStory);
    AddRunStory::Finish(world.TheStory, Answer::Yes);
    world.SeeImage(3, "Run");
    world.SeeImage(4, "Run");
    world.Play();
    for (const char* key :
         {"GasPressKDIORegAddr", "StdVolFlowKDIORegAddr", "AGA3StatusKDIORegAddr", "GFCRunHoldKDIORegAddr"})
        EXPECT_NE(world.Read("Run3", key), world.Read("Run4", key)) << key;
    EXPECT_EQ(world.Read("FlowRuns", "Run44"), "Yes");
}

TEST(AddRun, offers_no_tag_that_is_in_use) {
    AddRunWorld world("aga3_densimeter", {});
    const std::string pressure = world.Read("Run2", "GasPressKDIOTag");
    world.Open();
    world.Adding.Until(world.TheStory, 1);
    world.TheStory.Check([&](Driver& d) {
        ASSERT_FALSE(pressure.empty());
        ASSERT_GT(d.Rows("TagRuns", "ListViewRuns"), 0);
        for (int row = 1; row <= d.Rows("TagRuns", "ListViewRuns"); ++row) {
            EXPECT_NE(d.Cell("TagRuns", "ListViewRuns", row, 1), pressure);
            EXPECT_NE(d.Cell("TagRuns", "ListViewRuns", row, 1), "FLOG-1") << "of the working module";
        }
    });
    AddRunStory::AutoBind((world.TheStory.Type("TagRuns", "phostd", "1"), world.TheStory));
    world.TheStory.Click("Step", "Command1")
        .Click("TagRuns", "Command2")
        .Box("Gas Flow Computer", "", Icon::Question, Answer::Yes);
    world.Play();
}

TEST(AddRun, offers_the_data_of_other_runs_to_the_mechanical_editor) {
    AddRunWorld world("aga3_densimeter", {});
    world.Put("Run5", "OrificeDia", "7.5");
    world.Put("Run5", "PipeMaterial", "Other");
    world.Put("Run5", "PipeThermalExpCoeff", "0.0001");
    world.Open();
    world.Adding.Until(world.TheStory, 0);
    world.TheStory.Click("FrParMec", "Check1")
        .SeeEnabled("FrParMec", "Option1_0", false)
        .SeeEnabled("FrParMec", "Option1_1")
        .SeeEnabled("FrParMec", "Option1_2", false)
        .SeeEnabled("FrParMec", "Option1_4")
        .Click("FrParMec", "Option1_4")
        .SeeText("FrParMec", "txtDiaOrif", "7.5")
        .SeeText("FrParMec", "cbMatPipe", "Other")
        // The coefficients do not come along.
        .SeeText("FrParMec", "txtPipeThermal", "")
        .Click("FrParMec", "cmdCancel")
        .Box("Close mechanical parameters", "", Icon::None, Answer::Yes);
    world.Play();
}

TEST(AddRun, offers_the_sizes_of_other_runs_to_the_accelabar_editor) {
    AddRunWorld world("accelabar_densimeter", {2, 0});
    const std::string size = world.Read("Run5", "AccelabarSize");
    world.Open();
    world.Adding.Until(world.TheStory, 0);
    world.TheStory.Click("FrAccelabar", "Check1")
        .SeeEnabled("FrAccelabar", "Option1_1")
        .SeeEnabled("FrAccelabar", "Option1_3", false)
        .Click("FrAccelabar", "Option1_4")
        .SeeText("FrAccelabar", "Combo1", size)
        .Click("FrAccelabar", "Command2")
        .Box("Close mechanical parameters", "", Icon::None, Answer::Yes);
    world.Play();
}

// Run 1 stands first among the records that the editors copy from.
TEST(AddRun, external_diameters_of_run_1_are_not_those_of_the_new_run) {
    for (const auto& [golden, standard] :
         {std::pair{"aga7_densimeter", 1}, std::pair{"aga3_densimeter", 0}}) {
        SCOPED_TRACE(golden);
        AddRunWorld world(golden, {standard, 0});
        world.Put("Run1", "ExtMechParam", "Yes");
        world.AddAndSave();
        world.Play();
        EXPECT_EQ(world.Read("Run3", "PipeDiaKDIORegAddr"), "");
        EXPECT_EQ(world.File().find("PipeDiaKDIOTag", world.File().find("[Run3]")), std::string::npos);
    }
}

TEST(AddRun, external_diameters_of_the_new_run_are_bound) {
    AddRunWorld world("aga3_densimeter", {});
    world.Open();
    world.TheStory.Click("Step", "Command1")
        .Click("FrParMec", "OptExt")
        .Click("FrParMec", "cmdAceptar")
        .Click("Step", "Command1")
        .Type("TagRuns", "phostd", "0.05");
    AddRunStory::AutoBind(world.TheStory);
    world.TheStory.Click("Step", "Command1");
    AddRunStory::AutoBind(world.TheStory);
    AddRunStory::Finish(world.TheStory, Answer::Yes);
    world.Play();
    EXPECT_EQ(world.Read("Run3", "ExtMechParam"), "Yes");
    EXPECT_NE(world.Read("Run3", "PipeDiaKDIORegAddr"), "");
    EXPECT_NE(world.Read("Run3", "OrificeDiaKDIORegAddr"), "");
}

TEST(AddRun, stops_behind_the_first_editor_where_too_few_tags_are_free) {
    // Two runs of eight floats each are bound, and four are left.
    AddRunWorld world("aga3_densimeter", {}, LargeStationTags(20));
    const std::string before = world.File();
    world.Open();
    world.Adding.Until(world.TheStory, 0);
    world.TheStory.Click("FrParMec", "cmdAceptar")
        .Box("Missing Tags...",
             "Error : There are not enough available tags to make this configuration, please make more tags "
             "available using the I/O Workshop",
             Icon::None);
    world.TheStory.Check([&](Driver&) {
        EXPECT_EQ(world.Screen.BoxesShown.back().HelpFile, "AGA.chm");
        EXPECT_NE(world.Screen.BoxesShown.back().HelpContext, 0);
        world.ExpectNothingOpen();
    });
    world.Play();
    EXPECT_EQ(world.File(), before);
}

TEST(AddRun, fits_into_the_last_free_tags) {
    AddRunWorld world("aga3_densimeter", {}, LargeStationTags(24));
    world.AddAndSave();
    world.Play();
    EXPECT_EQ(world.Read("FlowRuns", "Run33"), "Yes");
}

} // namespace

} // namespace gfc::test
