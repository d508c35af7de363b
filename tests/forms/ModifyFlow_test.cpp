#include "ModifyWorld.h"
#include "config/VarINIFile.h"
#include "forms/TagRuns.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

constexpr const char* Form = ModifyWorld::Form;

void AcceptComposition(Story& story) {
    story.Click("MDetail", "Command1");
}

// The names that a list of TagRuns offers.
std::vector<std::string> Offered(Driver& eyes, const std::string& list) {
    std::vector<std::string> names;
    for (int row = 1; row <= eyes.Rows("TagRuns", list); ++row)
        names.push_back(eyes.Cell("TagRuns", list, row, 1));
    return names;
}

} // namespace

// The way through the windows

TEST(ModifyFlow, leads_through_the_windows_in_its_own_order) {
    ModifyWorld world;
    world.TickAndAccept({6, 4, 3, 2, 1});
    world.AcceptMechanical();
    world.TheStory.SeeCaption("TagRuns", "Configuring the AGA-3 Input Tags for Run 2");
    world.Continue();
    world.TheStory.SeeText("MDetail", "lbPrompt", "Enter/Edit the gas composition for Run 2");
    AcceptComposition(world.TheStory);
    world.TheStory.SeeCaption("TagRuns", "Configuring the Output Tags AGA 3 for Run 2");
    world.Continue();
    world.TheStory.SeeCaption("TagRuns", "Configuring the Output Tags AGA 8/ISO-12213-2-1997 for Run 2");
    world.Continue();
    world.SaveAfterTrial();
    world.Play();
    EXPECT_THAT(world.Windows(), ElementsAre("FrParMec", "TagRuns", "MDetail", "TagRuns", "TagRuns"));
}

TEST(ModifyFlow, binds_a_measured_composition_after_the_inputs) {
    ModifyWorld world({"AGA3", "ISO-12213-3-1997", "MEASURED"});
    world.TickAndAccept({5, 1});
    world.Continue();
    world.TheStory.SeeCaption(
        "TagRuns", "Configuring the SGERG-88/ISO-12213-3-1997 Gas Properties Input Tags for Run 2");
    world.Continue();
    world.SaveAfterTrial();
    world.Play();
    EXPECT_THAT(world.Windows(), ElementsAre("TagRuns", "TagRuns"));
}

TEST(ModifyFlow, takes_the_gross_properties_where_the_model_is_gross) {
    ModifyWorld world({"SYT6143-2004", "SGERG88"});
    world.TickAndAccept({6});
    world.TheStory.SeeText("frSGERG88", "lbPrompt", "Enter/Edit the gas properties for Run 2")
        .SeeText("frSGERG88", "Text1_1", "0.033")
        .Click("frSGERG88", "Command1");
    world.SaveAfterTrial();
    world.Play();
    EXPECT_THAT(world.Windows(), ElementsAre("frSGERG88"));
}

TEST(ModifyFlow, shows_the_values_that_the_file_holds_of_the_run) {
    ModifyWorld world;
    world.SelectRun(4);
    world.Put("Run4", "CalibrationFactor", "1.04");
    world.Put("Run4", "OrificeDia", "44.4");
    world.Put("Run4", "GC_N2", "0.44");
    world.TickAndAccept({1, 3, 6});
    world.TheStory.SeeCaption("FrParMec", "Mechanical parameters   North (Run 4)")
        .SeeText("FrParMec", "txtDiaOrif", "44.4");
    world.AcceptMechanical();
    world.TheStory.SeeText("TagRuns", "Text1", "1.04")
        .SeeText("TagRuns", "ListHour", "6")
        .SeeText("TagRuns", "ListMinx10", "3");
    world.Continue();
    world.TheStory.SeeText("MDetail", "Text1", "0.44");
    AcceptComposition(world.TheStory);
    world.SaveAfterTrial(ui::Answer::No);
    world.Play();
}

TEST(ModifyFlow, asks_for_external_diameters_as_soon_as_they_are_chosen) {
    ModifyWorld world;
    world.TickAndAccept({1, 3});
    world.TheStory.Click("FrParMec", "OptExt");
    world.AcceptMechanical();
    const std::string incomplete = "Can`t save. Please complete I/O assignments";
    world.TheStory.Click("TagRuns", "Command5").Box("Tags Configuration", incomplete, ui::Icon::Information);
    for (const char* variable : {"Pipe diameter", "Orifice diameter"})
        world.TheStory.ClickNode("TagRuns", "TreeAGA", std::string("AGA 3 Inputs\\") + variable)
            .Click("TagRuns", "Command1");
    world.Continue();
    world.SaveAfterTrial();
    world.Play();
    EXPECT_EQ(world.Key("Run2", "ExtMechParam"), "Yes");
    EXPECT_THAT(world.Key("Run2", "PipeDiaKDIOTag"), HasSubstr("FT-"));
    EXPECT_THAT(world.Key("Run2", "OrificeDiaKDIOTag"), HasSubstr("FT-"));
}

TEST(ModifyFlow, edits_a_run_that_is_off_and_enables_it) {
    ModifyWorld world;
    world.Put("FlowRuns", "Run4", "No");
    world.SelectRun(4);
    world.TickAndAccept({2});
    world.Continue();
    world.SaveAfterTrial();
    world.Play();
    EXPECT_EQ(world.Key("FlowRuns", "Run4"), "Yes");
    EXPECT_EQ(world.Key("FlowRuns", "Run2"), "Yes");
}

TEST(ModifyFlow, opens_no_editor_where_no_run_is_enabled) {
    ModifyWorld world;
    world.Put("FlowRuns", "Run2", "No");
    world.Put("FlowRuns", "Run4", "No");
    world.SelectNode("Individual Parameters");
    const std::string before = world.Content();
    world.TickAndAccept({1, 2, 3, 4});
    world.SaveAfterTrial();
    world.Play();
    EXPECT_THAT(world.Windows(), ElementsAre());
    EXPECT_EQ(world.Content(), before);
}

TEST(ModifyFlow, gives_the_mechanical_buffer_back_as_it_was) {
    ModifyWorld world;
    world.Session.EditedMechanical.OrificeDia = "in hand";
    world.TickAndAccept({3});
    world.AcceptMechanical();
    world.AskedToSave(ui::Icon::None, ui::Answer::No);
    world.Play();
    EXPECT_EQ(world.Session.EditedMechanical.OrificeDia, "in hand");
}

// What is on offer

TEST(ModifyFlow, offers_no_tag_that_the_file_uses) {
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

TEST(ModifyFlow, offers_the_analog_tags_that_are_free) {
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

TEST(ModifyFlow, offers_the_free_pulse_counters_of_a_turbine) {
    ModifyWorld world({"AGA7", "MEASURED"});
    world.TickAndAccept({1});
    world.TheStory.Check([&](Driver& eyes) {
        EXPECT_THAT(Offered(eyes, "ListLong"),
                    ElementsAre("PI-3", "PI-4", "PI-5", "PI-6", "PI-7", "PI-8", "PI-9", "PI-10"));
    });
    world.CancelTags();
    world.Play();
}

TEST(ModifyFlow, keeps_the_tags_of_the_stored_working_modules_back) {
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

TEST(ModifyFlow, returns_an_undone_tag_to_the_end_of_the_list) {
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

TEST(ModifyFlow, offers_a_tag_that_an_earlier_window_has_freed) {
    ModifyWorld world;
    world.TickAndAccept({1, 2});
    world.Rebind(0, "ListViewRuns"); // FT-1, the temperature's, is free now
    world.Continue();
    world.TheStory.Check([&](Driver& eyes) { EXPECT_EQ(Offered(eyes, "ListViewRuns").back(), "FT-1"); });
    world.CancelTags();
    world.Play();
}

// The trial and the save

TEST(ModifyFlow, stores_a_replaced_tag_after_the_trial) {
    ModifyWorld world;
    FileText expected(world.Content());
    world.TickAndAccept({1});
    world.Rebind(0, "ListViewRuns");
    world.Continue();
    world.SaveAfterTrial();
    world.Play();
    EXPECT_EQ(world.Assigned.Tag, "FT-29");
    EXPECT_EQ(world.Key("Run2", "GasTempKDIOTag"), "FT-29");
    EXPECT_EQ(world.Key("Run2", "GasTempKDIOType"), "FX");
    EXPECT_EQ(world.Key("Run2", "GasTempKDIORegAddr"), "1029");
    EXPECT_EQ(world.Key("Run4", "GasTempKDIOTag"), *expected.Value("Run4", "GasTempKDIOTag"));
    EXPECT_FALSE(world.Files.Content.contains(ModifyWorld::Log));
}

TEST(ModifyFlow, leaves_the_file_alone_when_the_answer_is_no) {
    ModifyWorld world;
    const auto before = world.Files.Content;
    world.TickAndAccept({1, 2, 3, 4, 6});
    world.TheStory.Type("FrParMec", "txtDiaOrif", "9.9");
    world.AcceptMechanical();
    world.Rebind(0, "ListViewRuns");
    world.Continue();
    world.TheStory.Type("MDetail", "Text10", "0.5");
    AcceptComposition(world.TheStory);
    world.Continue();
    world.Continue();
    world.SaveAfterTrial(ui::Answer::No);
    world.Play();
    EXPECT_EQ(world.Files.Content, before);
}

TEST(ModifyFlow, writes_nothing_before_the_question) {
    ModifyWorld world;
    const auto before = world.Files.Content;
    world.TickAndAccept({1, 2});
    world.Rebind(0, "ListViewRuns");
    world.Continue();
    world.TheStory.Check([&](Driver&) { EXPECT_EQ(world.Files.Content, before); });
    world.Continue();
    world.SaveAfterTrial(ui::Answer::No);
    world.Play();
}

TEST(ModifyFlow, needs_no_trial_for_the_mechanical_parameters_alone) {
    ModifyWorld world;
    // An error that any trial would find, and a file that any trial would delete.
    world.RenameTag("FT-1", "moved");
    world.Files.Content[ModifyWorld::Trial] = "left over";
    world.TickAndAccept({3});
    world.TheStory.Type("FrParMec", "txtDiaOrif", "9.9");
    world.AcceptMechanical();
    world.AskedToSave(ui::Icon::None, ui::Answer::Yes);
    world.Play();
    EXPECT_THAT(world.Windows(), ElementsAre("FrParMec"));
    EXPECT_EQ(world.Key("Run2", "OrificeDia"), "9.9");
    EXPECT_EQ(world.Files.Content.at(ModifyWorld::Trial), "left over");
}

TEST(ModifyFlow, leaves_the_mechanical_parameters_alone_when_the_answer_is_no) {
    ModifyWorld world;
    const auto before = world.Files.Content;
    world.TickAndAccept({3});
    world.TheStory.Type("FrParMec", "txtDiaOrif", "9.9");
    world.AcceptMechanical();
    world.AskedToSave(ui::Icon::None, ui::Answer::No);
    world.Play();
    EXPECT_EQ(world.Files.Content, before);
}

TEST(ModifyFlow, is_not_misled_by_what_a_crash_has_left) {
    ModifyWorld world;
    world.Files.Content[ModifyWorld::Trial] = "[FlowRuns]\r\nRun1=Yes\r\nRun5=Yes\r\n";
    world.TickAndAccept({2});
    world.Continue();
    world.SaveAfterTrial();
    world.Play();
    EXPECT_FALSE(world.Files.Content.contains(ModifyWorld::Trial));
}

TEST(ModifyFlow, writes_the_trial_and_the_save_in_one_replace_each) {
    ModifyWorld world;
    world.TickAndAccept({1, 2, 4});
    world.Continue();
    world.Continue();
    world.Continue();
    world.SaveAfterTrial();
    const int before = world.Files.Replaces;
    world.Play();
    EXPECT_EQ(world.Files.Replaces, before + 2);
}

TEST(ModifyFlow, keeps_the_bindings_although_no_copy_could_be_made) {
    ModifyWorld world;
    const std::string before = world.Key("Run2", "GasDPKDIOTag");
    world.Files.Unwritable.insert(ModifyWorld::Trial);
    world.TickAndAccept({1});
    world.Continue();
    // Nothing is there to be checked, so that nothing is wrong with it.
    world.SaveAfterTrial();
    world.Play();
    EXPECT_EQ(world.Key("Run2", "GasDPKDIOTag"), before);
    EXPECT_EQ(world.Key("Run2", "FlowAlgorithm"), "AGA3");
}

// Cancels

struct CancelRow {
    std::string Name;
    ModifyChoices Choices;
    std::vector<int> Boxes;
    void (*Tell)(ModifyWorld&);
    std::vector<std::string> Windows;
};

class ModifyFlowCancels : public testing::TestWithParam<CancelRow> {};

TEST_P(ModifyFlowCancels, leave_the_file_alone_and_close_the_form) {
    const auto& row = GetParam();
    ModifyWorld world(row.Choices);
    const auto before = world.Files.Content;
    world.TickAndAccept(row.Boxes);
    row.Tell(world);
    world.TheStory.SeeShown(Form, false);
    world.Play();
    world.Screen.PlayOut();
    EXPECT_EQ(world.Files.Content, before);
    EXPECT_EQ(world.Windows(), row.Windows);
    EXPECT_TRUE(world.Session.Cancelled);
    EXPECT_EQ(world.Session.EditMode, forms::EditMode::None);
    EXPECT_EQ(world.Station.FlowAlgorithm, "");
}

namespace {

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

INSTANTIATE_TEST_SUITE_P(Editors, ModifyFlowCancels, testing::ValuesIn(CancelRows()),
                         [](const auto& row) { return row.param.Name; });

TEST(ModifyFlow, goes_on_when_a_cancel_is_taken_back) {
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
