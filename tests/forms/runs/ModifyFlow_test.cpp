#include "ModifyWorld.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

void AcceptComposition(Story& story) {
    story.Click("MDetail", "Command1");
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
    world.TheStory.Box("Gas Flow Computer", "", ui::Icon::Exclamation, ui::Answer::Close);
    // Nothing is there to be checked, so that nothing is wrong with it.
    world.SaveAfterTrial();
    world.Play();
    EXPECT_EQ(world.Key("Run2", "GasDPKDIOTag"), before);
    EXPECT_EQ(world.Key("Run2", "FlowAlgorithm"), "AGA3");
}

} // namespace gfc::test
