#include "binding/Catalogue.h"
#include "binding/ErrorLog.h"
#include "forms/binding/TagsChanged.h"
#include "forms/main_window/GFCPrincipal.h"
#include "support/InJobs.h"
#include "support/World.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using forms::TagsChangedChoice;
using testing::HasSubstr;
using testing::Not;

const std::string Log = InJobs("KDOrmAGA_plant_North_Errors.log");

struct TagsChanged : testing::Test, World {
    TagsChanged() {
        AddStation("North", LargeStationTags());
        OpenProject();
        OpenStation("North");
        Session.GasInputsValid = true;
    }

    // An entry that the station does not have.
    void Miss(std::vector<binding::ExpectedTag> binding::ExpectedTags::*entries, std::string_view group) {
        binding::ExpectedTag entry;
        entry.RegAddr = "12";
        entry.Tag = "TT-1";
        entry.Type = "FX";
        entry.Group = group;
        entry.Location = "Run1";
        entry.Caption = "Temperature";
        (Session.Expected.*entries).push_back(entry);
    }
    void Show() { Program.Forms.Get<forms::TagsChanged>().ShowModal(); }
    void ShowAndAnswer(const std::string& button) {
        TheStory.Click("TagsChanged", button);
        Show();
    }
};

} // namespace

TEST_F(TagsChanged, says_what_happened_and_what_each_button_does) {
    TheStory.SeeCaption("TagsChanged", "Configuration errors alert")
        .SeeText(
            "TagsChanged", "Label3",
            "Warning: The current configuration is incomplete or has errors in its tag assigments. An error "
            "log file describing all the errors found has been generated and saved in \r\n" +
                Log)
        .SeeText(
            "TagsChanged", "Label1",
            "Click ignore to exit and save the project changes for later correction. Please note that runs "
            "with errors will  be marked as disabled independently of your selection. If all runs are "
            "disabled your configuration will not execute in the orm (*)")
        .SeeText("TagsChanged", "Label2",
                 "Click to continue working in the configuration mode to correct the errors.")
        .SeeText("TagsChanged", "Label4",
                 "Click to Exit KDOrm-AGA and discard all configuration or changes made in this session.")
        .SeeText("TagsChanged", "Label5",
                 "* Note: If only warnings were found, a configuration file will be generated anyway")
        .SeeText("TagsChanged", "Command1", "View Errors")
        .SeeText("TagsChanged", "CmdIgnore", "Ignore")
        .SeeText("TagsChanged", "Command3", "Back to Configure")
        .SeeText("TagsChanged", "Command2", "Discard");
    ShowAndAnswer("CmdIgnore");
}

TEST_F(TagsChanged, writes_the_log_when_it_loads) {
    Miss(&binding::ExpectedTags::ExpectedFloat, binding::group::Inputs);
    TheStory.Check([this](Driver&) {
        EXPECT_THAT(Files.Content[Log], HasSubstr("[I/O tags Float AGA 3/7 Inputs : Errors]\r\n"
                                                  "Error 1 = [Temperature] [TT-1] [12] [FX] [Run1] "
                                                  "[No found in I/O data base]\r\n\r\n"));
    });
    ShowAndAnswer("CmdIgnore");
}

// The trial of an edit is checked in a file of another name.
TEST_F(TagsChanged, writes_the_log_of_the_station_whatever_file_was_checked) {
    BuildExpectedTags(Program.Ini, "/jobs/tmpTags_plant_North.ini", Station, Session.Expected);
    ShowAndAnswer("CmdIgnore");
    EXPECT_TRUE(Files.Content.contains(Log));
    EXPECT_EQ(Files.Content.size(), 1U);
}

TEST_F(TagsChanged, says_ignore) {
    ShowAndAnswer("CmdIgnore");
    EXPECT_EQ(Session.TagsChangedChoice, TagsChangedChoice::Ignore);
    EXPECT_EQ(static_cast<int>(Session.TagsChangedChoice), 1);
    EXPECT_FALSE(Screen.Ended());
    EXPECT_FALSE(Program.Forms.IsLoaded<forms::TagsChanged>());
}

TEST_F(TagsChanged, says_back_to_configure) {
    ShowAndAnswer("Command3");
    EXPECT_EQ(Session.TagsChangedChoice, TagsChangedChoice::BackToConfigure);
    EXPECT_EQ(static_cast<int>(Session.TagsChangedChoice), 2);
    EXPECT_FALSE(Screen.Ended());
    EXPECT_FALSE(Program.Forms.IsLoaded<forms::TagsChanged>());
}

TEST_F(TagsChanged, says_discard_and_ends_the_program) {
    ShowAndAnswer("Command2");
    EXPECT_EQ(Session.TagsChangedChoice, TagsChangedChoice::Discard);
    EXPECT_EQ(static_cast<int>(Session.TagsChangedChoice), 3);
    EXPECT_TRUE(Screen.Ended());
    EXPECT_EQ(Screen.ExitCode, 0);
    EXPECT_FALSE(Program.Forms.IsLoaded<forms::TagsChanged>());
}

TEST_F(TagsChanged, takes_the_main_window_away_on_discard) {
    auto& main = Program.Forms.Get<forms::GFCPrincipal>();
    const auto alive = main.KeepAlive();
    main.Show();
    Files.Content[ConfigFile("North")] = "[General]\r\n";
    ShowAndAnswer("Command2");
    EXPECT_TRUE(main.IsUnloaded());
    EXPECT_EQ(Library.FilesToLoad.size(), 1U) << "its end registers the files that stand";
    EXPECT_TRUE(Screen.Ended());
}

TEST_F(TagsChanged, shows_the_errors_in_a_normal_window_and_stays) {
    TheStory.Click("TagsChanged", "Command1")
        .Check([this](Driver&) {
            ASSERT_EQ(Screen.TextsViewed.size(), 1U);
            EXPECT_EQ(Screen.TextsViewed.front().first, Log);
            EXPECT_EQ(Screen.TextsViewed.front().second, ui::WindowState::Normal);
        })
        .SeeShown("TagsChanged")
        .Click("TagsChanged", "Command1");
    ShowAndAnswer("Command3");
    EXPECT_EQ(Screen.TextsViewed.size(), 2U);
}

TEST_F(TagsChanged, says_that_there_is_no_log) {
    Files.Unwritable.insert(Log);
    TheStory
        .Box("Gas Flow Computer",
             std::string("The error log file was not written.\r\n") + Log +
                 "\r\n\r\nThe system says: Permission denied\r\nThere is no such file now.",
             ui::Icon::Exclamation, ui::Answer::Close)
        .Click("TagsChanged", "Command1")
        .Box("Gas Flow Computer", std::string("There is no error log file for this station:\r\n") + Log,
             ui::Icon::Exclamation)
        .SeeShown("TagsChanged");
    ShowAndAnswer("CmdIgnore");
    EXPECT_TRUE(Screen.TextsViewed.empty());
}

TEST_F(TagsChanged, says_that_no_viewer_starts) {
    Screen.ViewerWorks = false;
    TheStory.Click("TagsChanged", "Command1")
        .Box("Gas Flow Computer",
             std::string("No text viewer could be started to show the error log file:\r\n") + Log,
             ui::Icon::Exclamation)
        .SeeShown("TagsChanged");
    ShowAndAnswer("CmdIgnore");
}

TEST_F(TagsChanged, is_left_by_its_own_buttons_only) {
    TheStory.Check([this](Driver&) {
        auto& form = Program.Forms.Get<forms::TagsChanged>();
        EXPECT_FALSE(form.HasCloseCommand());
        EXPECT_FALSE(form.PersonCloses());
        EXPECT_EQ(form.CancelButton(), nullptr);
        EXPECT_EQ(form.DefaultButton(), nullptr);
    });
    ShowAndAnswer("CmdIgnore");
}

TEST_F(TagsChanged, clears_the_flag_of_the_gas_inputs_with_an_error_of_theirs) {
    for (const auto name : {binding::group::Composition, binding::group::GasParameters}) {
        Session.Expected = {};
        Session.GasInputsValid = true;
        Miss(&binding::ExpectedTags::ExpectedFloat, name);
        ShowAndAnswer("CmdIgnore");
        EXPECT_FALSE(Session.GasInputsValid) << name;
    }
}

TEST_F(TagsChanged, leaves_the_flag_of_the_gas_inputs_without_an_error_of_theirs) {
    Miss(&binding::ExpectedTags::ExpectedFloat, binding::group::Inputs);
    Miss(&binding::ExpectedTags::ExpectedDigital, binding::group::Composition);
    ShowAndAnswer("CmdIgnore");
    EXPECT_TRUE(Session.GasInputsValid);
    Session.GasInputsValid = false;
    ShowAndAnswer("CmdIgnore");
    EXPECT_FALSE(Session.GasInputsValid) << "only the caller sets it";
}

TEST_F(TagsChanged, starts_anew_each_time) {
    ShowAndAnswer("Command3");
    Station.CurrentStation = "South";
    TheStory.Check([this](Driver&) { EXPECT_EQ(Session.TagsChangedChoice, TagsChangedChoice::None); })
        .Check([](Driver& driver) {
            EXPECT_THAT(driver.Text("TagsChanged", "Label3"), HasSubstr("KDOrmAGA_plant_South_Errors.log"));
            EXPECT_THAT(driver.Text("TagsChanged", "Label3"), Not(HasSubstr("North")));
        });
    ShowAndAnswer("CmdIgnore");
}

} // namespace gfc::test
