#include "forms/main_window/GFCPrincipal.h"
#include "forms/station/PassStory.h"
#include "forms/wizard/WizardFC.h"
#include "support/Named.h"

#include <gtest/gtest.h>

namespace gfc::test {
namespace {

constexpr const char* Form = "WizardFC";

class MissingValue : public testing::TestWithParam<const char*> {};

TEST_P(MissingValue, keeps_the_page_under_one_message) {
    WizardWorld world;
    (void)world.Preset(0, 0, 1);
    for (int page = 0; page < 3; ++page)
        world.TheStory.Click(Form, "siguiente");
    world.TheStory.Type(Form, GetParam(), "")
        .Click(Form, "finalizar")
        .Box("Gas Flow Computer", "Error: Missing gas flowing viscosity or gas isentropic coefficient",
             ui::Icon::Exclamation)
        .SeeVisible(Form, "siguiente")
        .SeeEnabled(Form, "siguiente")
        .SeeText(Form, "lbStep", "Step 4 of 4")
        .SeeVisible(Form, "Frame4")
        .Check([&](Driver&) { EXPECT_EQ(world.Station.StandardT, ""); });
    world.PlayPages();
}

INSTANTIATE_TEST_SUITE_P(Fields, MissingValue,
                         testing::Values("TextDensityStandardTemp", "TextDensityStandardP", "Text1", "Text2"),
                         byText);

// Next is back beside Finish then, and leads nowhere; but it deliberately takes the frames away.
TEST(WizardFinish, next_on_the_last_page_hides_the_composition_of_any_source_but_aga8) {
    for (const int source : {1, 2, 3, 4}) {
        WizardWorld world;
        (void)world.Preset(0, source, 1);
        for (int page = 0; page < 3; ++page)
            world.TheStory.Click(Form, "siguiente");
        world.TheStory.Type(Form, "Text1", "")
            .Click(Form, "finalizar")
            .Box("Gas Flow Computer", "", ui::Icon::Exclamation)
            .SeeVisible(Form, "FrCompGas")
            .Click(Form, "siguiente")
            .SeeVisible(Form, "FrCompGas", source == 1)
            .SeeVisible(Form, "FrMetAGA8", source == 1)
            .SeeVisible(Form, "finalizar")
            .SeeText(Form, "lbStep", "Step 4 of 4");
        world.PlayPages();
    }
}

TEST(WizardFinish, goes_on_once_the_missing_value_is_there) {
    PassWorld world({0, 0});
    world.Program.Forms.Get<forms::WizardFC>().Text1.SetText("");
    world.TheStory
        .Box("Gas Flow Computer", "Error: Missing gas flowing viscosity or gas isentropic coefficient",
             ui::Icon::Exclamation)
        .Type(Form, "Text1", "0.011")
        .Click(Form, "finalizar");
    world.ThePass.Open(world.TheStory);
    world.ThePass.Through(world.TheStory);
    world.TheStory.Check([&](Driver&) { EXPECT_EQ(world.Station.FlowingViscosity, "0.011"); });
    world.PlayPages();
}

TEST(WizardFinish, the_closing_page_is_the_only_one_left) {
    PassWorld world({0, 0});
    world.ThePass.Open(world.TheStory);
    world.ThePass.Through(world.TheStory);
    for (const char* button : {"siguiente", "atras", "finalizar", "lbStep"})
        world.TheStory.SeeVisible(Form, button, false);
    world.TheStory.SeeText(Form, "lbInfo", "")
        .SeeEnabled(Form, "Command1")
        .Check([](Driver& d) { EXPECT_EQ(d.Focused(Form), "Command1") << "Enter must not ask to quit"; })
        .SelectTab(Form, "wizard", 1)
        .Check([](Driver& d) { EXPECT_EQ(d.Tab(Form, "wizard"), 4); })
        .Click(Form, "Command2");
    world.PlayPages();
    EXPECT_EQ(world.Screen.HelpOpened.back(), std::pair(std::string("AGA.chm"), 3400));
}

// The save.

// The story up to the closing page of a small configuration over an existing file.
struct SaveWorld : PassWorld {
    SaveWorld() : PassWorld({1, 0, false, false, {4}}) {
        Files.Content[ConfigFile("North")] = "[Run1]\r\nold=1\r\n[Foreign]\r\nkept=no\r\n";
        ThePass.Open(TheStory);
        ThePass.Through(TheStory);
        TheStory.Click(Form, "Command1");
    }
};

TEST(WizardSave, replaces_an_older_file_and_all_its_sections) {
    SaveWorld world;
    world.Play();
    EXPECT_EQ(world.File().find("Foreign"), std::string::npos);
    EXPECT_EQ(world.File().find("[Run1]"), std::string::npos);
    EXPECT_NE(world.File().find("[Run4]"), std::string::npos);
}

// What the box says of the file.
void ExpectNotSaved(SaveWorld& world, const std::string& file, const std::string& reason,
                    const std::string& stands, ui::Answer answer) {
    world.TheStory.Box("Gas Flow Computer",
                       "The configuration of the station was not saved.\r\n" + file +
                           "\r\n\r\nThe system says: " + reason + "\r\n" + stands,
                       ui::Icon::Exclamation, answer);
}

TEST(WizardSave, waits_as_long_as_the_old_file_stands) {
    SaveWorld world;
    const std::string file = world.ConfigFile("North");
    // Bytes go in beside it, and it cannot be deleted.
    world.Files.Held.insert(file);
    for (int wait = 0; wait < 3; ++wait)
        world.TheStory.SeeText("WaitForFile", "Label2", file)
            .SeeText("WaitForFile", "Label3", "The system says: Permission denied")
            .Check([&](Driver&) { EXPECT_NE(world.File().find("old=1"), std::string::npos); })
            .Tick("WaitForFile", "timerWait");
    world.TheStory.Do("let it go", [&](Driver&) { world.Files.Held.clear(); })
        .Tick("WaitForFile", "timerWait");
    world.Play();
    EXPECT_NE(world.File().find("[Run4]"), std::string::npos);
    EXPECT_EQ(world.File().find("old=1"), std::string::npos);
    EXPECT_FALSE(world.Program.Forms.IsLoaded<forms::WizardFC>());
}

TEST(WizardSave, keeps_the_pass_where_the_wait_is_given_up) {
    SaveWorld world;
    const std::string file = world.ConfigFile("North");
    world.Files.Held.insert(file);
    world.TheStory.Click("WaitForFile", "Command1")
        .SeeShown(Form)
        .Check([&](Driver&) { EXPECT_NE(world.File().find("old=1"), std::string::npos); })
        .Do("let it go", [&](Driver&) { world.Files.Held.clear(); })
        .SeeEnabled(Form, "Command1")
        .Click(Form, "Command1");
    world.Play();
    EXPECT_NE(world.File().find("[Run4]"), std::string::npos);
    for (const auto& box : world.Screen.BoxesShown)
        EXPECT_NE(box.TheButtons, ui::Buttons::RetryClose) << "who gave it up knows";
}

TEST(WizardSave, lets_the_program_end_while_the_old_file_stands) {
    SaveWorld world;
    world.Files.Held.insert(world.ConfigFile("North"));
    world.TheStory.Do("end the program", [&](Driver&) { world.Screen.EndProgram(0); });
    world.Play();
    EXPECT_NE(world.File().find("old=1"), std::string::npos);
}

TEST(WizardSave, leaves_the_old_configuration_on_a_full_disk) {
    SaveWorld world;
    const std::string file = world.ConfigFile("North");
    world.Files.DiskFull = true;
    for (const auto answer : {ui::Answer::Retry, ui::Answer::Close})
        ExpectNotSaved(world, file, "No space left on device", "The file stands as it was before.", answer);
    world.TheStory.SeeShown(Form)
        .Check([&](Driver&) { EXPECT_NE(world.File().find("old=1"), std::string::npos); })
        .Do("make room", [&](Driver&) { world.Files.DiskFull = false; })
        .Click(Form, "Command1");
    world.Play();
    EXPECT_NE(world.File().find("[Run4]"), std::string::npos) << "the pass was still in hand";
    EXPECT_FALSE(world.Program.Forms.IsLoaded<forms::WizardFC>());
}

TEST(WizardSave, says_that_the_folder_takes_no_file) {
    SaveWorld world;
    world.Files.Content.clear();
    world.Files.Unwritable.insert(world.ConfigFile("North"));
    ExpectNotSaved(world, world.ConfigFile("North"), "Permission denied", "There is no such file now.",
                   ui::Answer::Close);
    world.TheStory.Click(Form, "cancelar")
        .Box("Gas Flow Computer", "Do you want to quit the configuration wizard ?", ui::Icon::None,
             ui::Answer::Yes);
    world.Play();
    EXPECT_TRUE(ProjectFiles(world.Files).empty());
    EXPECT_FALSE(world.Program.Forms.IsLoaded<forms::WizardFC>());
    EXPECT_FALSE(world.Screen.Ended());
}

TEST(WizardSave, says_that_no_file_bears_the_name_of_the_station) {
    for (const char* name : {"../North", "a\\b", "x\ny"}) {
        SaveWorld world;
        const auto before = ProjectFiles(world.Files);
        world.Station.CurrentStation = name;
        ExpectNotSaved(world, "",
                       "The name of the station, or the path of the project, cannot be that of a file",
                       "There is no such file now.", ui::Answer::Close);
        world.TheStory.Click(Form, "cancelar").Box("Gas Flow Computer", "", ui::Icon::None, ui::Answer::Yes);
        world.Play();
        EXPECT_EQ(ProjectFiles(world.Files), before) << name;
        EXPECT_FALSE(world.Program.Forms.IsLoaded<forms::WizardFC>()) << name;
        EXPECT_FALSE(world.Screen.Ended()) << name;
    }
}

// The end of the program, wherever it comes, is met quietly.

TEST(WizardFinish, unwinds_without_a_word_when_the_program_ends_between_two_dialogs) {
    PassWorld world({0, 0});
    world.ThePass.Open(world.TheStory);
    world.ThePass.Until(world.TheStory, 0);
    world.ThePass.Dialogs()[0].GoThrough(world.TheStory);
    world.TheStory.SeeShown("Step").Do("end the program", [&](Driver&) { world.Screen.EndProgram(0); });
    world.Play();
    EXPECT_TRUE(world.Screen.BoxesShown.empty());
    EXPECT_TRUE(ProjectFiles(world.Files).empty());
    EXPECT_EQ(world.Screen.FormsShown.back(), "Step");
}

TEST(WizardFinish, unwinds_without_a_word_when_the_program_ends_inside_a_dialog) {
    PassWorld world({0, 0});
    world.ThePass.Open(world.TheStory);
    world.ThePass.Until(world.TheStory, 0);
    world.TheStory.Do("end the program", [&](Driver&) { world.Screen.EndProgram(0); });
    world.Play();
    EXPECT_EQ(world.Screen.FormsShown.back(), "FrParMec");
}

// The main window behind the wizard.

struct WithMainWindow : PassWorld {
    WithMainWindow() : PassWorld({1, 0, false, false, {1}}) {
        Program.Forms.Get<forms::GFCPrincipal>().Show();
        Program.Session.EditMode = forms::EditMode::Wizard;
    }
    Story& SeeMainWindow(bool shown) { return TheStory.SeeShown("GFCPrincipal", shown); }
};

TEST(WizardFinish, the_main_window_is_away_during_the_pass_and_back_after_the_save) {
    WithMainWindow world;
    world.SeeMainWindow(false);
    world.ThePass.Open(world.TheStory);
    world.SeeMainWindow(false);
    world.ThePass.Through(world.TheStory);
    world.SeeMainWindow(false).Click(Form, "Command1").SeeShown("WizardFC", false);
    world.SeeMainWindow(true);
    world.Play();
    world.Screen.PlayOut();
    // Coming back, it has shown the new state.
    EXPECT_FALSE(world.Session.TreeRefreshNeeded);
    EXPECT_NE(world.Program.Forms.Get<forms::GFCPrincipal>().TreeGFC.FindPath(
                  "All Stations\\North\\Individual Parameters\\Run 1"),
              0);
}

TEST(WizardFinish, the_main_window_is_back_after_a_cancel) {
    WithMainWindow world;
    world.ThePass.Open(world.TheStory);
    world.ThePass.Until(world.TheStory, 1);
    world.TheStory.Click("TagRuns", "Command2")
        .Box("Gas Flow Computer", "", ui::Icon::Question, ui::Answer::Yes);
    world.Play();
    EXPECT_TRUE(world.Program.Forms.Get<forms::GFCPrincipal>().IsShown());
    EXPECT_TRUE(world.Program.Forms.Get<forms::GFCPrincipal>().Enabled());
}

TEST(WizardFC, quitting_on_a_page_leaves_the_main_window_where_it_is) {
    WizardWorld world;
    world.Program.Forms.Get<forms::GFCPrincipal>().Show();
    (void)world.Preset(0, 0, 1);
    world.PlayPages();
    EXPECT_TRUE(world.Program.Forms.Get<forms::GFCPrincipal>().IsShown());
}

} // namespace
} // namespace gfc::test
