#include "RunCommandsWorld.h"
#include "config/RunLayout.h"
#include "forms/runs/RunCommands.h"

#include <algorithm>

namespace gfc::test {

namespace {

using ui::Answer;
using ui::Icon;

const std::string firstLine = "Error : Configuration errors or inconsistencies found in Run 2\r\n";
const std::string logLines =
    std::string("A log file describing the error and its cause has been generated in:\r\n") +
    RunCommandsWorld::Log + "\r\n\r\nDo you wish to see the log file of errors ?";

struct DisableRun : testing::Test, RunCommandsWorld {
    void ExpectAsksForRun() {
        TheStory.Box("Error select run", "Please select the run you wish to enable at individual parameters",
                     Icon::Exclamation);
    }
};

TEST_F(DisableRun, asks_for_a_run_in_the_words_of_the_other_command) {
    TheStory.Menu("GFCPrincipal", "dRun");
    ExpectAsksForRun();
    for (const auto& node : {std::string("All Stations"), Runs}) {
        ChooseAt(node, "dRun");
        ExpectAsksForRun();
    }
    Play();
    EXPECT_EQ(Files.Replaces, 0);
}

TEST_F(DisableRun, says_that_a_disabled_run_is_disabled_and_writes_nothing) {
    Choose(3, "dRun");
    TheStory.Box("Run disabled", "The run already selected is disabled", Icon::Information);
    Play();
    EXPECT_EQ(Files.Replaces, 0);
}

TEST_F(DisableRun, turns_the_run_off_and_leaves_all_else_alone) {
    std::string expected = File();
    expected.replace(expected.find("Run2=Yes"), 8, "Run2=No");
    Choose(2, "dRun");
    SeeImage(2, "NoRun");
    SeeImage(5, "Run");
    Play();
    EXPECT_EQ(File(), expected);
    EXPECT_EQ(Read("FlowRuns", "Run22"), "Yes");
    EXPECT_EQ(Station.Run[1], "Yes") << "the model is not touched";
}

TEST_F(DisableRun, leaves_the_same_run_of_another_station_alone) {
    const std::string south = "/jobs/KDOrmAGA_plant_South.ini";
    const std::string before = Files.Content[south] = File();
    ChooseAt("All Stations\\South\\Individual Parameters\\Run 5", "dRun");
    SeeImage(5, "Run");
    Choose(2, "dRun");
    TheStory.Check([](Driver& d) {
        const std::string runs = "All Stations\\South\\Individual Parameters\\";
        EXPECT_EQ(d.NodeImage("GFCPrincipal", "TreeGFC", runs + "Run 2"), "Run");
        EXPECT_EQ(d.NodeImage("GFCPrincipal", "TreeGFC", runs + "Run 5"), "NoRun");
    });
    Play();
    EXPECT_EQ(Program.Ini.ReadKey("FlowRuns", "Run2", south), "Yes");
    EXPECT_EQ(Read("FlowRuns", "Run5"), "Yes");
}

TEST_F(DisableRun, does_not_make_a_file_anew_that_has_gone) {
    TheStory.ClickNode("GFCPrincipal", "TreeGFC", RunNode(2));
    TheStory.Do("delete the file from outside", [this](Driver&) { Files.Content.clear(); });
    TheStory.Menu("GFCPrincipal", "dRun");
    TheStory.Check(
        [](Driver& d) { EXPECT_EQ(d.NodeImage("GFCPrincipal", "TreeGFC", North), "StationNoConfig"); });
    Play();
    EXPECT_TRUE(Files.Content.empty());
}

struct EnableRun : testing::Test, RunCommandsWorld {
    void ExpectFailure(const std::string& text, Answer answer = Answer::No) {
        TheStory.Box("Failed enable run", text, Icon::Question, answer);
    }
    void ExpectAsksForRun() {
        TheStory.Box("Error select run", "Please select the run that wish to enable at individual parameters",
                     Icon::Exclamation);
    }
    // A configured run that is off.
    void TurnOff(int run) { Put("FlowRuns", config::RunSection(run), "No"); }
    [[nodiscard]] int TagReads() const {
        return static_cast<int>(std::ranges::count(Library.Calls, "ReadTags North"));
    }
};

TEST_F(EnableRun, reads_and_compares_the_tags_before_it_asks_for_a_run) {
    ChooseAt(Runs, "erun");
    ExpectAsksForRun();
    TheStory.Check([this](Driver&) {
        EXPECT_EQ(TagReads(), 1);
        EXPECT_FALSE(Session.Expected.ExpectedFloat.empty());
        EXPECT_TRUE(Session.Expected.ExpectedFloat.front().Found);
        EXPECT_EQ(Station.FlowAlgorithm, "AGA3") << "the file has been read";
    });
    Play();
    EXPECT_EQ(Files.Replaces, 0);
}

TEST_F(EnableRun, reads_the_tags_of_a_station_node_too) {
    TheStory.ClickNode("GFCPrincipal", "TreeGFC", North);
    TheStory.Do("run the command", [this](Driver&) { forms::EnableRunCommand(Program); });
    ExpectAsksForRun();
    Play();
    EXPECT_EQ(TagReads(), 1);
}

TEST_F(EnableRun, says_first_that_there_are_no_tags_while_no_station_was_ever_selected) {
    TheStory.Menu("GFCPrincipal", "erun");
    TheStory.Box("Flow Gas Computer", "Error: There are not Tags in Station", Icon::Critical);
    ExpectAsksForRun();
    Play();
}

TEST_F(EnableRun, says_that_an_enabled_run_is_enabled) {
    Choose(2, "erun");
    TheStory.Box("Run enabled", "The selected run is enabled already", Icon::Information);
    Play();
    EXPECT_EQ(Files.Replaces, 0);
    EXPECT_EQ(Session.EditMode, forms::EditMode::None);
}

TEST_F(EnableRun, enables_a_run_that_was_configured) {
    TurnOff(2);
    std::string expected = File();
    expected.replace(expected.find("Run2=No"), 7, "Run2=Yes");
    Choose(2, "erun");
    SeeImage(2, "Run");
    Play();
    EXPECT_EQ(File(), expected);
}

TEST_F(EnableRun, leaves_the_flags_in_memory_as_the_file_has_them) {
    ChooseAt(Runs, "erun");
    ExpectAsksForRun();
    Play();
    EXPECT_EQ(Station.Run[1], "Yes");
    EXPECT_EQ(Station.Run[2], "No");
}

TEST_F(EnableRun, works_outside_every_edit) {
    Session.EditMode = forms::EditMode::ModifyTags;
    TurnOff(2);
    Choose(2, "erun");
    Play();
    EXPECT_EQ(Session.EditMode, forms::EditMode::None);
}

TEST_F(EnableRun, disables_an_enabled_run_whose_tag_is_missing) {
    Put("Run2", "GasPressKDIOTag", "GONE");
    std::string expected = File();
    expected.replace(expected.find("Run2=Yes"), 8, "Run2=No");
    Choose(2, "erun");
    ExpectFailure("Error : Configuration errors or inconsistecies found in Run 2\r\n" + logLines);
    // Until the tree is built anew.
    SeeImage(2, "Run");
    Play();
    EXPECT_EQ(File(), expected);
    EXPECT_TRUE(Screen.TextsViewed.empty());
}

TEST_F(EnableRun, has_written_the_flag_when_the_failure_is_shown) {
    Put("Run2", "GasPressKDIOTag", "GONE");
    Choose(2, "erun");
    ExpectFailure("");
    TheStory.Check([this](Driver&) {
        ASSERT_EQ(Screen.BoxesShown.size(), 1U);
        EXPECT_EQ(Read("FlowRuns", "Run2"), "No");
    });
    Play();
}

TEST_F(EnableRun, shows_the_log_of_the_last_check_in_a_maximised_window) {
    Files.Content[Log] = "[I/O tags]\r\n";
    Put("Run2", "GasPressKDIOTag", "GONE");
    Choose(2, "erun");
    ExpectFailure("", Answer::Yes);
    Play();
    ASSERT_EQ(Screen.TextsViewed.size(), 1U);
    EXPECT_EQ(Screen.TextsViewed[0].first, Log);
    EXPECT_EQ(Screen.TextsViewed[0].second, ui::WindowState::Maximised);
    EXPECT_EQ(Files.Content[Log], "[I/O tags]\r\n") << "this command writes no log";
}

TEST_F(EnableRun, tells_what_was_found_where_there_is_no_log) {
    Put("Run2", "GasPressKDIOTag", "GONE");
    Choose(2, "erun");
    ExpectFailure("", Answer::Yes);
    TheStory.Box("Gas Flow Computer", "", Icon::Exclamation);
    Play();
    const std::string told = Screen.BoxesShown.back().Text;
    EXPECT_TRUE(told.starts_with("No log file has been written for this station yet. The check has found:\r\n"
                                 "Error 1 ="))
        << told;
    EXPECT_NE(told.find("[GONE]"), std::string::npos) << told;
    EXPECT_TRUE(Screen.TextsViewed.empty());
    EXPECT_FALSE(Files.Content.contains(Log));
}

TEST_F(EnableRun, reports_the_digital_tag_before_the_float_one) {
    Put("Run2", "GasPressKDIOTag", "GONE");
    Put("Run2", "GFCRunHoldKDIOTag", "GONE");
    Choose(2, "erun");
    ExpectFailure(firstLine + logLines);
    Play();
}

TEST_F(EnableRun, reports_a_missing_analog_tag) {
    Put("Run2", "AGA3StatusKDIORegAddr", "99999");
    Choose(2, "erun");
    ExpectFailure(firstLine + logLines);
    Play();
}

TEST_F(EnableRun, sees_what_has_become_of_the_tags_since_the_last_command) {
    Choose(2, "erun");
    TheStory.Box("Run enabled", "", Icon::Information);
    TheStory.Do("rename a tag in the workshop", [this](Driver&) {
        for (auto& tag : Library.TagsOf["North"])
            if (tag.TagName == Read("Run2", "GasTempKDIOTag"))
                tag.TagName = "RENAMED";
    });
    Choose(2, "erun");
    ExpectFailure("Error : Configuration errors or inconsistecies found in Run 2\r\n" + logLines);
    Play();
    EXPECT_EQ(Read("FlowRuns", "Run2"), "No");
}

TEST_F(EnableRun, is_not_stopped_by_a_tag_of_another_run) {
    Put("Run5", "GasPressKDIOTag", "GONE");
    TurnOff(2);
    Choose(2, "erun");
    SeeImage(2, "Run");
    Play();
    EXPECT_EQ(Read("FlowRuns", "Run2"), "Yes");
    EXPECT_EQ(Read("FlowRuns", "Run5"), "Yes");
}

// The check lists the tags of enabled runs alone, so that those of a run that is off cannot fail.
TEST_F(EnableRun, does_not_look_at_the_tags_of_a_run_that_is_off) {
    Put("Run2", "GasPressKDIOTag", "GONE");
    TurnOff(2);
    Choose(2, "erun");
    SeeImage(2, "Run");
    Play();
    EXPECT_EQ(Read("FlowRuns", "Run2"), "Yes");
}

TEST_F(EnableRun, passes_over_any_other_word_in_silence) {
    for (const char* word : {"", "yes", "NO", "Maybe"}) {
        Put("FlowRuns", "Run33", word);
        Choose(3, "erun");
    }
    TheStory.Do("without the key",
                [this](Driver&) { Hand.WriteKey("FlowRuns", "Run33", std::nullopt, Path); });
    Choose(3, "erun");
    SeeImage(3, "NoRun");
    Play();
    EXPECT_EQ(Read("FlowRuns", "Run3"), "No");
    EXPECT_TRUE(Screen.BoxesShown.empty());
}

TEST_F(EnableRun, changes_nothing_where_the_offer_is_declined) {
    const std::string before = File();
    Choose(3, "erun");
    OfferToConfigure(Answer::No);
    SeeImage(3, "NoRun");
    Play();
    EXPECT_EQ(File(), before);
    EXPECT_EQ(TagReads(), 1);
    EXPECT_EQ(Station.CurrentStation, "North");
}

TEST_F(EnableRun, does_nothing_to_a_station_whose_file_has_gone) {
    TheStory.ClickNode("GFCPrincipal", "TreeGFC", RunNode(3));
    TheStory.Do("delete the file from outside", [this](Driver&) { Files.Content.clear(); });
    TheStory.Menu("GFCPrincipal", "erun");
    Play();
    EXPECT_TRUE(Files.Content.empty());
    EXPECT_TRUE(Screen.BoxesShown.empty());
}

TEST(EnableRunOfATurbine, reports_a_missing_long_tag_in_its_own_letters) {
    RunCommandsWorld world("aga7_densimeter");
    world.Put("Run2", "GasPulseInputKDIOTag", "GONE");
    world.Put("Run2", "GasMassKDIOTag", "GONE");
    world.Choose(2, "erun");
    world.TheStory.Box("Failed enable run",
                       firstLine +
                           "A lof file describing the error and its cause has been generated in:\r\n" +
                           RunCommandsWorld::Log + "\r\n\r\nDou you wish to see the log file of  errors ?",
                       Icon::Question, Answer::No);
    world.Play();
    EXPECT_EQ(world.Read("FlowRuns", "Run2"), "No");
}

} // namespace

} // namespace gfc::test
