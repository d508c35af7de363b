// A cancel in each of the windows that the flow leads through.
#include "ModifyWorld.h"

#include <gtest/gtest.h>

namespace gfc::test {

namespace {

struct CancelRow {
    std::string Name;
    ModifyChoices Choices;
    std::vector<int> Boxes;
    void (*Tell)(ModifyWorld&);
    std::vector<std::string> Windows;

    friend void PrintTo(const CancelRow& the, std::ostream* out) { *out << the.Name; }
};

void CancelMechanical(ModifyWorld& world, const std::string& form, const std::string& button) {
    world.TheStory.Click(form, button)
        .Box("Close mechanical parameters",
             "Are you sure want to discard the changes made to the current configuration ?", ui::Icon::None,
             ui::Answer::Yes);
}

const std::vector<int> AllFixed = {1, 2, 3, 4, 6};

std::vector<CancelRow> CancelRows() {
    return {
        {"mechanical",
         {},
         AllFixed,
         [](ModifyWorld& world) { CancelMechanical(world, "FrParMec", "cmdCancel"); },
         {"FrParMec"}},
        {"accelabar",
         {"Accelabar-AGA-3-1992", "AGA8"},
         AllFixed,
         [](ModifyWorld& world) { CancelMechanical(world, "FrAccelabar", "Command2"); },
         {"FrAccelabar"}},
        {"mechanical_alone",
         {},
         {3},
         [](ModifyWorld& world) { CancelMechanical(world, "FrParMec", "cmdCancel"); },
         {"FrParMec"}},
        {"inputs",
         {},
         AllFixed,
         [](ModifyWorld& world) {
             world.AcceptMechanical();
             world.CancelTags();
         },
         {"FrParMec", "TagRuns"}},
        {"composition",
         {},
         AllFixed,
         [](ModifyWorld& world) {
             world.AcceptMechanical();
             world.Continue();
             world.TheStory.Click("MDetail", "Command3")
                 .Box("Orm Gas Flow Computer",
                      "Are you sure  you to want to cancel?. All changes will be lost", ui::Icon::None,
                      ui::Answer::Yes);
         },
         {"FrParMec", "TagRuns", "MDetail"}},
        {"properties",
         {"AGA7", "SGERG88"},
         {6, 2},
         [](ModifyWorld& world) {
             world.TheStory.Click("frSGERG88", "Command2")
                 .Box("Gas Flow Computer", "Are you sure  you to want to cancel?. All changes will be lost",
                      ui::Icon::None, ui::Answer::Yes);
         },
         {"frSGERG88"}},
        {"gas_inputs",
         {"AGA3", "AGA8", "MEASURED"},
         {5, 2},
         [](ModifyWorld& world) { world.CancelTags(); },
         {"TagRuns"}},
        {"outputs", {}, {2, 4}, [](ModifyWorld& world) { world.CancelTags(); }, {"TagRuns"}},
        {"gas_outputs",
         {},
         {2, 4},
         [](ModifyWorld& world) {
             world.Continue();
             world.CancelTags();
         },
         {"TagRuns", "TagRuns"}},
    };
}

} // namespace

class ModifyFlowCancels : public testing::TestWithParam<CancelRow> {};

TEST_P(ModifyFlowCancels, leave_the_file_alone_and_close_the_form) {
    const auto& row = GetParam();
    ModifyWorld world(row.Choices);
    const auto before = world.Files.Content;
    world.TickAndAccept(row.Boxes);
    row.Tell(world);
    world.TheStory.SeeShown(ModifyWorld::Form, false);
    world.Play();
    world.Screen.PlayOut();
    EXPECT_EQ(world.Files.Content, before);
    EXPECT_EQ(world.Windows(), row.Windows);
    EXPECT_TRUE(world.Session.Cancelled);
    EXPECT_EQ(world.Session.EditMode, forms::EditMode::None);
    EXPECT_EQ(world.Station.FlowAlgorithm, "");
}

INSTANTIATE_TEST_SUITE_P(Editors, ModifyFlowCancels, testing::ValuesIn(CancelRows()),
                         [](const auto& row) { return row.param.Name; });

TEST(ModifyFlowCancel, goes_on_when_a_cancel_is_taken_back) {
    ModifyWorld world;
    world.TickAndAccept({2});
    world.TheStory.Click("TagRuns", "Command2")
        .Box("Gas Flow Computer", "", ui::Icon::Question, ui::Answer::No);
    world.Continue();
    world.SaveAfterTrial();
    world.Play();
    EXPECT_FALSE(world.Session.Cancelled);
}

} // namespace gfc::test
