#include "forms/main_window/GFCPrincipal.h"
#include "forms/tools/FrPlanStations.h"
#include "support/FakeRecorder.h"
#include "support/InJobs.h"
#include "support/TestFolders.h"
#include "support/World.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace gfc::test {

namespace {

using testing::HasSubstr;

const std::string window = "FrPlanStations";
const std::string main = "GFCPrincipal";

std::string FileOf(const std::string& station) {
    return InJobs("KDOrmAGA_plant_" + station + ".ini");
}

// The tags of the large station with other numbers, and without one of its digital ones.
project::TagList Shifted(int by, const std::string& without = {}) {
    project::TagList tags = LargeStationTags();
    std::erase_if(tags, [&](const project::Tag& tag) { return tag.TagName == without; });
    for (project::Tag& tag : tags) {
        const std::string name(tag.TagName);
        const auto dash = name.find('-');
        tag.TagName = name.substr(0, dash + 1) + std::to_string(std::stoi(name.substr(dash + 1)) + by);
    }
    return tags;
}

struct HasRecorder {
    FakeRecorder Record;
};

struct PlanStations : testing::Test, HasRecorder, World {
    PlanStations() : World(Record) {
        AddStation("North", LargeStationTags());
        AddStation("South", Shifted(1000));
        AddStation("West", Shifted(2000, "XS-3"));
        std::string bytes = Golden("wizard/aga3_aga8_fixed.ini");
        Files.Content[FileOf("North")] = bytes;
        Hand.WriteKey("General", "OrmStation", "North", FileOf("North"));
    }
    forms::FrPlanStations& Form() { return Program.Forms.Get<forms::FrPlanStations>(); }
    void Play() {
        Program.Forms.Get<forms::GFCPrincipal>().Show();
        Screen.RunToEnd();
    }
    Story& Open() {
        return TheStory.ClickNode(main, "TreeGFC", "All Stations\\North").Menu(main, "copySeveral");
    }
    Story& Exit() { return TheStory.Menu(main, "exit"); }
    std::string Status(int row) { return Form().ListView1.Cell(row, 3); }
    // Its row in the lower list; 0 for none.
    int RowOf(const std::string& sourceTag) {
        for (int row = 1; row <= Form().ListView2.Count(); ++row)
            if (Form().ListView2.Cell(row, 2).starts_with(sourceTag + " "))
                return row;
        return 0;
    }
    Story& LookBothUp() {
        return Open()
            .Click(window, "Command2")
            .Tick(window, "Timer1")
            .Tick(window, "Timer1")
            .Tick(window, "Timer1");
    }
};

TEST_F(PlanStations, proposes_for_each_chosen_station_and_says_what_is_missing) {
    LookBothUp()
        .Check([&](Driver&) {
            EXPECT_EQ(Status(1), "all found");
            EXPECT_EQ(Status(2), "1 variable without a tag");
            EXPECT_FALSE(Form().ListView1.IsMarked(1));
            EXPECT_TRUE(Form().ListView1.IsMarked(2));
            const int row = RowOf("FT-3");
            ASSERT_GT(row, 0);
            EXPECT_EQ(Form().ListView2.Cell(row, 3), "FT-1003 (FX 1003)");
            EXPECT_THAT(Form().ListView2.Cell(row, 4), HasSubstr("the same name but for its number"));
        })
        .ClickRow(window, "ListView1", 2)
        .Check([&](Driver&) {
            const int row = RowOf("XS-3");
            EXPECT_EQ(Form().ListView2.Cell(row, 3), "missing");
            EXPECT_TRUE(Form().ListView2.IsMarked(row));
        })
        .Click(window, "Check1")
        .Check([&](Driver&) { EXPECT_EQ(RowOf("XS-3"), Form().ListView2.Count()); })
        .Click(window, "Command9");
    Exit();
    Play();
    EXPECT_EQ(Files.Content.size(), 1U);
}

TEST_F(PlanStations, writes_the_complete_ones_and_records_and_checks_each_at_once) {
    LookBothUp()
        .Click(window, "Command7")
        .Tick(window, "Timer1")
        .Tick(window, "Timer1")
        .Check([&](Driver& d) {
            EXPECT_THAT(Status(1), HasSubstr("written"));
            EXPECT_EQ(Form().ListView1.Cell(1, 2), "has one");
            EXPECT_EQ(Status(2), "1 variable without a tag");
            EXPECT_THAT(d.Text(window, "Label4"), HasSubstr("1 written, 0 failed"));
            EXPECT_THAT(Files.Content[FileOf("South")], HasSubstr("GasTempKDIOTag=FT-1001\r\n"));
            EXPECT_FALSE(Files.Content.contains(FileOf("West")));
        })
        .Click(window, "Command8")
        .Tick(window, "Timer1")
        .Tick(window, "Timer1")
        .Check([&](Driver&) {
            EXPECT_THAT(Files.Content[FileOf("West")], HasSubstr("ResetTotalsKDIOTag=\r\n"));
            EXPECT_THAT(Status(2), HasSubstr("written; the check finds"));
        })
        .Click(window, "Command9")
        .Check([&](Driver& d) { EXPECT_EQ(d.Cell(main, "ListView1", 2, 1), "Yes"); });
    Exit();
    Play();
    std::erase_if(Record.Recorded, [](const config::FileChange& change) { return change.Command.empty(); });
    ASSERT_EQ(Record.Recorded.size(), 2U);
    EXPECT_EQ(Record.Recorded.front().Command, "Copy to station");
    EXPECT_EQ(Record.Recorded.front().Station, "South");
}

TEST_F(PlanStations, takes_the_tag_that_a_person_chooses_and_asks_before_that_is_lost) {
    LookBothUp()
        .ClickRow(window, "ListView1", 2)
        .Click(window, "Check1")
        .Do("select the missing one", [&](Driver& d) { d.ClickRow(window, "ListView2", RowOf("XS-3")); })
        .Check([&](Driver&) {
            // No tag that another variable has.
            EXPECT_EQ(Form().Combo1.ListIndex(), -1);
            EXPECT_EQ(std::ranges::count(Form().Combo1.Entries(), "XS-2001 (X 401)"), 0);
        })
        .Select(window, "Combo1", 0)
        .Click(window, "Command4")
        .Check([&](Driver&) {
            EXPECT_EQ(Status(2), "all found");
            EXPECT_EQ(RowOf("XS-3"), 0);
        })
        .Click(window, "Command9")
        .Box("Copy to several stations",
             "Tags were chosen that are not written. Do you want to close the window?", ui::Icon::None,
             ui::Answer::No)
        .Click(window, "Command7")
        .Tick(window, "Timer1")
        .Tick(window, "Timer1")
        .Tick(window, "Timer1")
        .Check([&](Driver&) { EXPECT_TRUE(Files.Content.contains(FileOf("West"))); })
        .Click(window, "Command9");
    Exit();
    Play();
}

TEST_F(PlanStations, asks_before_it_closes_on_stations_that_are_not_written_yet) {
    LookBothUp()
        .Click(window, "Command8")
        .Tick(window, "Timer1")
        .Click(window, "Command9")
        .Box("Copy to several stations", "Stations wait to be written. Do you want to close the window?",
             ui::Icon::None, ui::Answer::No)
        .Tick(window, "Timer1")
        .Check([&](Driver&) { EXPECT_TRUE(Files.Content.contains(FileOf("West"))); })
        .Click(window, "Command9");
    Exit();
    Play();
}

TEST_F(PlanStations, asks_before_each_configuration_that_is_replaced) {
    Files.Content[FileOf("South")] = "[General]\r\n";
    Open()
        .Click(window, "Command2") // South is not among those that lose nothing
        .Check([&](Driver&) { EXPECT_EQ(Form().ListView1.Cell(1, 0), ""); })
        .Do("open the row", [&](Driver&) { (void)Form().ListView1.PersonOpensRow(1); })
        .Do("open the row", [&](Driver&) { (void)Form().ListView1.PersonOpensRow(2); })
        .Tick(window, "Timer1")
        .Click(window, "Command6")
        .Click(window, "Command8")
        .Box("Copy to several stations",
             "The station has a configuration, which will be replaced.\r\nProceed?", ui::Icon::Question,
             ui::Answer::No)
        .Check([&](Driver&) { EXPECT_EQ(Files.Content[FileOf("South")], "[General]\r\n"); })
        .Click(window, "Command9");
    Exit();
    Play();
}

TEST_F(PlanStations, what_cannot_be_written_stays_in_red_and_goes_once_it_can) {
    LookBothUp()
        .Check([&](Driver&) { Files.DiskFull = true; })
        .Click(window, "Command7")
        .Tick(window, "Timer1")
        .Check([&](Driver&) {
            EXPECT_THAT(Status(1), HasSubstr("not written. The system says: No space left on device."));
            EXPECT_TRUE(Form().ListView1.IsMarked(1));
            EXPECT_FALSE(Files.Content.contains(FileOf("South")));
            Files.DiskFull = false;
        });
    TheStory.Tick(window, "Timer1")
        .Click(window, "Command7")
        .Tick(window, "Timer1")
        .Tick(window, "Timer1")
        .Check([&](Driver&) { EXPECT_TRUE(Files.Content.contains(FileOf("South"))); })
        .Click(window, "Command9");
    Exit();
    Play();
}

TEST_F(PlanStations, binds_the_selected_station_anew_after_its_tags_were_renamed) {
    for (project::Tag& tag : Library.TagsOf["North"])
        if (tag.TagName == "FT-2")
            tag.TagName = "PIT-77";
    TheStory.ClickNode(main, "TreeGFC", "All Stations\\North")
        .Menu(main, "bindAnew")
        .Check([&](Driver&) {
            EXPECT_EQ(Form().ListView1.Count(), 1);
            EXPECT_EQ(Form().ListView1.Cell(1, 0), "Yes");
        })
        .Tick(window, "Timer1")
        .Tick(window, "Timer1")
        .Check([&](Driver&) {
            const int row = RowOf("FT-2");
            ASSERT_GT(row, 0);
            EXPECT_EQ(Form().ListView2.Cell(row, 3), "PIT-77 (FX 1002)");
            EXPECT_EQ(Form().ListView2.Cell(row, 4), "the same register, which was called FT-2");
            EXPECT_EQ(Status(1), "all found, 1 tag to change");
        })
        .Click(window, "Check1")
        .Check([&](Driver& d) {
            EXPECT_EQ(d.Text(window, "Check1"), "Only what changes, is missing or not sure");
            EXPECT_EQ(Form().ListView2.Count(), 1) << "what changes is left, sure as it is";
            EXPECT_EQ(RowOf("FT-2"), 1);
        })
        .Click(window, "Command7")
        .Tick(window, "Timer1")
        .Tick(window, "Timer1")
        .Check([&](Driver&) {
            EXPECT_THAT(Files.Content[FileOf("North")], HasSubstr("GasPressKDIOTag=PIT-77\r\n"));
        })
        .Do("choose it again", [&](Driver&) { (void)Form().ListView1.PersonOpensRow(1); })
        .Do("choose it again", [&](Driver&) { (void)Form().ListView1.PersonOpensRow(1); })
        .Tick(window, "Timer1")
        .Tick(window, "Timer1")
        .Check([&](Driver&) { EXPECT_EQ(Status(1), "all found, nothing to change"); })
        .Click(window, "Command9");
    Exit();
    Play();
    EXPECT_EQ(std::ranges::count(Record.Recorded, "Bind anew", &config::FileChange::Command), 1);
}

TEST_F(PlanStations, opens_its_page_of_the_manual_by_its_button_and_by_F1) {
    Open()
        .Click(window, "Command5")
        .Do("F1", [&](Driver&) { EXPECT_TRUE(Form().PersonPresses(ui::Key::F1)); })
        .Click(window, "Command9");
    Exit();
    Play();
    const std::pair<std::string, int> page{"AGA.chm", 8100};
    EXPECT_EQ(Screen.HelpOpened, (std::vector{page, page}));
}

TEST_F(PlanStations, needs_a_configured_station_to_copy_from) {
    TheStory.ClickNode(main, "TreeGFC", "All Stations\\South")
        .Menu(main, "copySeveral")
        .Box("Copy to several stations",
             "Please select the configured station whose configuration is to be copied.",
             ui::Icon::Exclamation);
    Exit();
    Play();
}

} // namespace
} // namespace gfc::test
