#include "AddRunWorld.h"

namespace gfc::test {

namespace {

using ui::Answer;
using ui::Icon;

struct AddCase {
    const char* Name;
    AddedRun Added;
    std::size_t Steps;

    friend void PrintTo(const AddCase& the, std::ostream* out) { *out << the.Name; }
};

class AddedRuns : public testing::TestWithParam<AddCase> {};

TEST_P(AddedRuns, from_the_tree_to_the_changed_file) {
    AddRunWorld world(GetParam().Name, GetParam().Added);
    EXPECT_EQ(world.Adding.Dialogs().size(), GetParam().Steps);
    const std::string before = world.File();
    world.Open();
    world.Adding.Until(world.TheStory, GetParam().Steps - 1);
    world.TheStory.Check([&](Driver&) { EXPECT_EQ(world.File(), before); });
    world.Adding.Dialogs().back().GoThrough(world.TheStory);
    AddRunStory::Finish(world.TheStory, Answer::Yes);
    world.SeeImage(GetParam().Added.Run, "Run");
    world.Play();
    EXPECT_EQ(world.File(), GoldenText("added/" + std::string(GetParam().Name)));
    EXPECT_EQ(world.Files.Replaces, 1) << "one save, one replace";
    EXPECT_EQ(world.Session.Modules.NFX, 0);
    EXPECT_FALSE(world.Program.Forms.IsLoaded<forms::Step>());
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Families, AddedRuns, testing::Values(
    AddCase{"aga3_densimeter",      {0, 0},       3},
    AddCase{"aga3_aga8_fixed",      {0, 1},       5},
    AddCase{"aga3_iso2_outside_external", {0, 3, true}, 5},
    AddCase{"aga7_densimeter",      {1, 0},       2},
    AddCase{"aga7_aga8_fixed",      {1, 1},       4},
    AddCase{"aga7_iso3_fixed_external", {1, 4},   4},
    AddCase{"accelabar_densimeter", {2, 0},       3},
    AddCase{"accelabar_iso3_fixed", {2, 4},       5},
    AddCase{"gbt_densimeter",       {3, 0},       3},
    AddCase{"gbt_aga8_outside",     {3, 1, true}, 5}),
    [](const auto& row) { return row.param.Name; });
// clang-format on

struct CancelWords {
    const char* Button;
    const char* Title;
    Icon TheIcon;
};

CancelWords CancelOf(const std::string& window) {
    if (window == "TagRuns")
        return {"Command2", "Gas Flow Computer", Icon::Question};
    if (window == "MDetail")
        return {"Command3", "Orm Gas Flow Computer", Icon::None};
    if (window == "frSGERG88")
        return {"Command2", "Gas Flow Computer", Icon::None};
    return {window == "FrParMec" ? "cmdCancel" : "Command2", "Close mechanical parameters", Icon::None};
}

class CancelledAddition : public testing::TestWithParam<AddCase> {};

TEST_P(CancelledAddition, leaves_the_file_byte_for_byte_at_whichever_window) {
    const auto dialogs = AddRunStory(GetParam().Added).Dialogs();
    for (std::size_t at = 0; at < dialogs.size(); ++at) {
        SCOPED_TRACE(dialogs[at].Announced);
        AddRunWorld world(GetParam().Name, GetParam().Added);
        const std::string before = world.File();
        world.Open();
        world.Adding.Until(world.TheStory, at);
        const auto words = CancelOf(dialogs[at].Window);
        // No question about saving follows.
        world.TheStory.Click(dialogs[at].Window, words.Button)
            .Box(words.Title, "", words.TheIcon, Answer::Yes)
            .SeeShown("Step", false);
        world.TheStory.Check([&](Driver&) { world.ExpectNothingOpen(); });
        world.Play();
        EXPECT_EQ(world.File(), before);
        EXPECT_EQ(world.Files.Replaces, 0);
    }
}

INSTANTIATE_TEST_SUITE_P(Families, CancelledAddition,
                         testing::Values(AddCase{"aga3_aga8_fixed", {0, 1}, 5},
                                         AddCase{"aga3_iso2_outside_external", {0, 3, true}, 5},
                                         AddCase{"aga7_iso3_fixed_external", {1, 4}, 4},
                                         AddCase{"accelabar_densimeter", {2, 0}, 3}),
                         [](const auto& row) { return row.param.Name; });

TEST(AddRun, announces_measured_gross_properties_in_words_of_their_own) {
    AddRunWorld world("aga3_sgerg88_fixed", {0, 2, true});
    world.Put("SGERG88", "AGA8CalInput", "MEASURED");
    const std::string before = world.File();
    world.Open();
    world.Adding.Until(world.TheStory, 3);
    world.TheStory
        .Check([&](Driver&) { EXPECT_EQ(world.Session.BindingStage, forms::BindingStage::GasInputs); })
        .Click("TagRuns", "Command2")
        .Box("Gas Flow Computer", "", Icon::Question, Answer::Yes);
    world.Play();
    EXPECT_EQ(world.File(), before);
}

TEST(AddRun, a_no_at_the_end_leaves_the_file_alone) {
    AddRunWorld world("aga3_densimeter", {});
    const std::string before = world.File();
    world.Open();
    world.Adding.Through(world.TheStory);
    AddRunStory::Finish(world.TheStory, Answer::No);
    world.TheStory.Check([&](Driver&) { world.ExpectNothingOpen(); });
    world.Play();
    EXPECT_EQ(world.File(), before);
}

TEST(AddRun, can_be_taken_up_again_after_a_cancel) {
    AddRunWorld world("aga3_densimeter", {});
    world.Open();
    world.Adding.Until(world.TheStory, 2);
    world.TheStory.Click("TagRuns", "Command2").Box("Gas Flow Computer", "", Icon::Question, Answer::Yes);
    world.AddAndSave();
    world.Play();
    EXPECT_EQ(world.File(), GoldenText("added/aga3_densimeter"));
}

TEST(AddRun, shows_the_new_run_in_the_pane_beside_the_tree) {
    AddRunWorld world("aga3_densimeter", {});
    world.AddAndSave();
    world.TheStory.Check([&](Driver&) {
        EXPECT_TRUE(world.Window().SSTab2.Visible());
        EXPECT_EQ(world.Station.Runs.IO.front().GasDensityStandard, "0.0458");
        EXPECT_EQ(world.Station.Runs.Mechanical.size(), 1U);
    });
    world.Play();
}

TEST(AddRun, an_unknown_source_is_not_counted) {
    AddRunWorld world("aga3_densimeter", {});
    world.Put("FlowRuns", "GasDensitySource", "GUESSED");
    world.Open();
    world.TheStory.SeeText("Step", "Label2", "Step 0 of 0")
        .Click("Step", "Command1")
        .Click("FrParMec", "cmdAceptar")
        .SeeText("Step", "Label2", "Step 1 of 0")
        .Click("Step", "Command1")
        .Click("TagRuns", "Command2")
        .Box("Gas Flow Computer", "", Icon::Question, Answer::Yes);
    world.Play();
}

TEST(AddRun, does_not_make_a_file_anew_that_has_gone) {
    AddRunWorld world("aga3_densimeter", {});
    world.Open();
    world.Adding.Until(world.TheStory, 2);
    world.TheStory.Do("delete the file from outside", [&](Driver&) { world.Files.Content.clear(); });
    AddRunStory::AutoBind(world.TheStory);
    AddRunStory::Finish(world.TheStory, Answer::Yes);
    world.TheStory.Box(
        "Gas Flow Computer",
        std::string("The run was not saved. The configuration file of the station is not there "
                    "any more:\r\n") +
            RunCommandsWorld::Path,
        Icon::Exclamation);
    world.TheStory.Check([](Driver& d) {
        EXPECT_EQ(d.NodeImage("GFCPrincipal", "TreeGFC", RunCommandsWorld::North), "StationNoConfig");
    });
    world.Play();
    EXPECT_TRUE(world.Files.Content.empty());
}

} // namespace

} // namespace gfc::test
