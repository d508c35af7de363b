// A trial that fails, and what each answer makes of it.
#include "ModifyWorld.h"
#include "forms/main_window/GFCPrincipal.h"
#include "support/InJobs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

// Run 4 names a tag that the station holds no more.
struct BrokenWorld : ModifyWorld {
    explicit BrokenWorld(const ModifyChoices& choices = {}, const std::string& key = "GasTempKDIOTag",
                         const std::string& section = "Run4")
        : ModifyWorld(choices) {
        RenameTag(Key(section, key), "renamed");
    }
    // Through the outputs of run 2, which get another status tag, to the answer.
    void EditOutputs(const std::string& answer) {
        TickAndAccept({2});
        Rebind(4, "ListAnalogDig");
        Continue();
        TheStory.SeeShown("TagsChanged")
            .Check([this](Driver&) { EXPECT_FALSE(Files.Content.contains(Trial)); })
            .Click("TagsChanged", answer);
    }
    [[nodiscard]] std::vector<std::string> Flags() {
        std::vector<std::string> flags;
        for (int run = 1; run <= config::MaxRuns; ++run)
            flags.push_back(Key("FlowRuns", "Run" + std::to_string(run)));
        return flags;
    }
};

} // namespace

TEST(ModifyFlowErrors, are_told_and_logged_beside_the_configuration) {
    BrokenWorld world;
    world.EditOutputs("Command3");
    world.Play();
    EXPECT_THAT(world.Windows(), ElementsAre("TagRuns", "TagsChanged"));
    EXPECT_THAT(world.Files.Content.at(ModifyWorld::Log),
                HasSubstr("Error 1 = [Temperature] [FT-15] [1015] [FX] [Run4] [No found in I/O data base]"));
}

TEST(ModifyFlowErrors, ignored_are_saved_and_turn_their_runs_off) {
    BrokenWorld world;
    FileText expected(world.Content());
    world.EditOutputs("CmdIgnore");
    world.Play();
    expected.Touch("FlowRuns", {"Run2"}).Set("FlowRuns", "Run4", "No");
    const std::vector<std::string> stems = {"GasVolume", "GasMass", "StdMassFlow", "StdVolFlow",
                                            "AGA3Status"};
    for (const auto& stem : stems)
        expected.Touch("Run2", {stem + "KDIOTag", stem + "KDIOType", stem + "KDIORegAddr"});
    expected.Set("Run2", "AGA3StatusKDIOTag", "AI-5").Set("Run2", "AGA3StatusKDIORegAddr", "205");
    expected.Touch("Run2", {"StandardT", "StandardP", "Compressible", "FlowingViscosity", "IsentropicCoeff",
                            "FlowAlgorithm", "GasDensitySource"});
    EXPECT_EQ(world.Content(), expected.Bytes());
}

TEST(ModifyFlowErrors, ignored_are_saved_in_one_replace) {
    BrokenWorld world;
    world.EditOutputs("CmdIgnore");
    const int before = world.Files.Replaces;
    world.Play();
    EXPECT_EQ(world.Files.Replaces, before + 3); // the trial, the log, the file
}

TEST(ModifyFlowErrors, of_the_edited_run_turn_it_off) {
    BrokenWorld world({}, "GasTempKDIOTag", "Run2");
    world.EditOutputs("CmdIgnore");
    world.Play();
    EXPECT_THAT(world.Flags(), ElementsAre("No", "No", "No", "Yes", "No"));
    EXPECT_EQ(world.Key("Run2", "AGA3StatusKDIOTag"), "AI-5");
}

TEST(ModifyFlowErrors, can_be_mended_by_the_edit_itself) {
    BrokenWorld world({}, "GasTempKDIOTag", "Run2");
    world.TickAndAccept({1});
    world.Rebind(0, "ListViewRuns");
    world.Continue();
    world.SaveAfterTrial();
    world.Play();
    EXPECT_NE(world.Key("Run2", "GasTempKDIOTag"), "FT-1");
    EXPECT_THAT(world.Flags(), ElementsAre("No", "Yes", "No", "Yes", "No"));
    EXPECT_FALSE(world.Files.Content.contains(ModifyWorld::Log));
}

TEST(ModifyFlowErrors, lead_back_with_nothing_written) {
    BrokenWorld world;
    const std::string before = world.Content();
    world.EditOutputs("Command3");
    world.TheStory.SeeShown(ModifyWorld::Form, false);
    world.Play();
    world.Screen.PlayOut();
    EXPECT_EQ(world.Content(), before);
    EXPECT_EQ(world.Session.TagsChangedChoice, forms::TagsChangedChoice::BackToConfigure);
    EXPECT_EQ(world.Station.FlowAlgorithm, "");
}

TEST(ModifyFlowErrors, discarded_end_the_program_with_nothing_written) {
    BrokenWorld world;
    const std::string before = world.Content();
    world.EditOutputs("Command2");
    world.Play();
    EXPECT_TRUE(world.Screen.Ended());
    EXPECT_EQ(world.Content(), before);
    EXPECT_FALSE(world.Files.Content.contains(ModifyWorld::Trial));
}

TEST(ModifyFlowErrors, of_the_shared_composition_turn_all_runs_off) {
    BrokenWorld world({"AGA3", "AGA8", "MEASURED", {1, 2, 4}}, "GC_N2KDIOTag");
    world.EditOutputs("CmdIgnore");
    world.Play();
    EXPECT_FALSE(world.Session.GasInputsValid);
    EXPECT_THAT(world.Flags(), ElementsAre("No", "No", "No", "No", "No"));
}

TEST(ModifyFlowErrors, of_the_shared_gas_properties_turn_all_runs_off) {
    BrokenWorld world({"AGA7", "ISO-12213-3-1997", "MEASURED", {1, 2, 4}}, "XCO2KDIOTag");
    world.EditOutputs("CmdIgnore");
    world.Play();
    EXPECT_THAT(world.Flags(), ElementsAre("No", "No", "No", "No", "No"));
}

TEST(ModifyFlowErrors, of_other_tags_leave_the_other_runs_on_under_a_shared_composition) {
    BrokenWorld world({"AGA3", "AGA8", "MEASURED", {1, 2, 4}});
    // What an earlier check has left is not what counts.
    world.Session.GasInputsValid = false;
    world.EditOutputs("CmdIgnore");
    world.Play();
    EXPECT_TRUE(world.Session.GasInputsValid);
    EXPECT_THAT(world.Flags(), ElementsAre("Yes", "Yes", "No", "No", "No"));
}

TEST(ModifyFlowErrors, turn_the_edited_run_off_whenever_its_gas_inputs_were_edited) {
    BrokenWorld world({"AGA3", "AGA8", "MEASURED"});
    world.TickAndAccept({5});
    world.Continue();
    world.TheStory.Click("TagsChanged", "CmdIgnore");
    world.Play();
    // The error is run 4's; run 2 goes off with it.
    EXPECT_THAT(world.Flags(), ElementsAre("No", "No", "No", "No", "No"));
}

TEST(ModifyFlowErrors, of_the_atmospheric_pressure_disable_no_run) {
    ModifyWorld world;
    world.Put("AGA3", "ExtAtmPress", "Yes");
    world.Put("AGA3", "CommonPaKDIOTag", "gone");
    world.TickAndAccept({2});
    world.Continue();
    world.TheStory.Click("TagsChanged", "CmdIgnore");
    world.Play();
    EXPECT_EQ(world.Key("FlowRuns", "Run2"), "Yes");
    EXPECT_EQ(world.Key("FlowRuns", "Run4"), "Yes");
    EXPECT_EQ(world.Key("FlowRuns", "AGA3"), "No"); // a key that nobody reads
}

// Keys written now would make a station that counts as configured and has next to nothing in its file.
TEST(ModifyFlowErrors, of_a_file_that_has_gone_are_told_and_no_file_is_made) {
    const std::string gone =
        std::string("The changes were not saved. The configuration file of the station is "
                    "not there any more:\r\n") +
        InJobs("KDOrmAGA_plant_North.ini");
    for (const int box : {3, 2}) {
        ModifyWorld world;
        world.TickAndAccept({box});
        world.TheStory.Do("delete the file from outside", [&](Driver&) { world.Files.Content.clear(); });
        if (box == 3) {
            world.AcceptMechanical();
            world.AskedToSave(ui::Icon::None, ui::Answer::Yes);
        } else {
            // There is nothing to be tried.
            world.Continue();
        }
        world.TheStory.Box("Gas Flow Computer", gone, ui::Icon::Exclamation);
        world.Play();
        EXPECT_FALSE(world.Files.Content.contains(world.File()));
        EXPECT_FALSE(world.Files.Content.contains(ModifyWorld::Trial));
    }
}

TEST(ModifyFlowErrors, leave_a_missing_name_to_be_corrected_later) {
    ModifyWorld world;
    world.Put("Run4", "AGA8rhosKDIOTag", "");
    world.TickAndAccept({2});
    world.Continue();
    world.TheStory.Click("TagsChanged", "CmdIgnore");
    world.Play();
    EXPECT_THAT(world.Files.Content.at(ModifyWorld::Log), HasSubstr("[Tag without name]"));
    EXPECT_EQ(world.Key("FlowRuns", "Run4"), "No");
}

} // namespace gfc::test
