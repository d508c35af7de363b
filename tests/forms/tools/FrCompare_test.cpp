#include "ToolRoom.h"
#include "forms/tools/FrCompare.h"

#include <gmock/gmock.h>

namespace gfc::test {

namespace {

using testing::HasSubstr;
using testing::Not;
using ui::Answer;
using ui::Icon;

const std::string window = "FrCompare";

struct CompareWindow : ToolRoom {
    forms::FrCompare& Form() { return Program.Forms.Get<forms::FrCompare>(); }
    Story& Open() { return TheStory.ClickNode(Main, "TreeGFC", "All Stations\\North").Menu(Main, "compare"); }
    int RowOfKey(const std::string& key, int column = 3) { return RowOf(Form().ListView1, column, key); }
    void PlayToTheEnd() {
        TheStory.Click(window, "Command10");
        Play();
    }
};

TEST_F(CompareWindow, begins_with_what_the_station_has_and_what_it_had_before) {
    Open().Check([&](Driver& d) {
        EXPECT_EQ(d.Text(window, "Combo2"), "as it stands");
        EXPECT_EQ(d.Text(window, "Combo5"), "3: 2023-03-10 08:00:00 Modify run, bob");
        auto& list = Form().ListView1;
        ASSERT_EQ(list.Count(), 2);
        EXPECT_EQ(list.At(1), (ui::ListView::Row{"", "Run1", "Orifice Plate Internal Dia.", "OrificeDia",
                                                 "6.5 in", "6.0 in"}));
        EXPECT_EQ(list.At(2), (ui::ListView::Row{"", "Run1", "MeterKind", "MeterKind", "x", "(none)"}));
        EXPECT_EQ(list.Columns()[4].Heading, "North as it stands");
        EXPECT_EQ(list.Columns()[5].Heading, "North, entry 3");
        EXPECT_THAT(d.Text(window, "Label4"), HasSubstr("2 of "));
    });
    PlayToTheEnd();
}

TEST_F(CompareWindow, shows_equal_rows_and_filters) {
    Open()
        .Click(window, "Check1")
        .Check([&](Driver&) { EXPECT_GT(Form().ListView1.Count(), 10); })
        .Type(window, "Text1", "internal")
        .Check([&](Driver&) { EXPECT_EQ(Form().ListView1.Count(), 4); })
        .Click(window, "Check1")
        .Check([&](Driver&) { EXPECT_EQ(Form().ListView1.Count(), 1) << "the bore alone differs"; });
    PlayToTheEnd();
}

TEST_F(CompareWindow, compares_runs_of_other_numbers_and_takes_over_into_the_left_ones_section) {
    Open()
        .Select(window, "Combo5", 0)
        .SeeText(window, "Label4", "Both are equal: 15 values")
        .Select(window, "Combo3", 1)
        .SeeText(window, "Combo6", "Run 1")
        .Select(window, "Combo6", 2)
        .MarkRow(window, "ListView1", 1)
        .Click(window, "Command6")
        .Box("Compare", "", Icon::Question, Answer::Yes)
        .Check([&](Driver&) {
            EXPECT_THAT(Screen.BoxesShown.back().Text,
                        HasSubstr("[Run1] Orifice Plate Internal Dia.: 6.5 in -> 4.0 in"));
            EXPECT_EQ(Files.Content[North], FileWith("4.0", "MeterKind=x\r\n"));
            EXPECT_EQ(Recorder.Entries("", {}).back().Command, "Take over");
            EXPECT_EQ(Form().ListView1.MarkedCount(), 0);
            EXPECT_EQ(RowOfKey("OrificeDia"), 0) << "it is equal now";
        });
    PlayToTheEnd();
}

TEST_F(CompareWindow, tells_before_what_the_check_would_find) {
    Files.Content["/jobs/other.ini"] = FileWith("99.9");
    Open()
        .Select(window, "Combo4", 2)
        .ChooseFile("/jobs/other.ini")
        .Check([&](Driver& d) {
            EXPECT_EQ(d.Text(window, "Combo4"), "/jobs/other.ini");
            d.MarkRow(window, "ListView1", RowOfKey("OrificeDia"));
        })
        .Click(window, "Command6")
        .Box("Compare", "", Icon::Question, Answer::No)
        .Check([&](Driver&) {
            EXPECT_THAT(Screen.BoxesShown.back().Text,
                        HasSubstr("error: The bore of 99.9 in is not below the pipe's diameter of 12.0 in."));
            EXPECT_EQ(Screen.BoxesShown.back().AtStake, "North");
            EXPECT_EQ(Files.Content[North], Present);
            EXPECT_EQ(Form().ListView1.MarkedCount(), 1) << "what was chosen stays so";
        });
    PlayToTheEnd();
}

TEST_F(CompareWindow, takes_a_key_away_that_the_right_side_lacks) {
    Open()
        .Check([&](Driver& d) { d.OpenRow(window, "ListView1", RowOfKey("MeterKind")); })
        .Click(window, "Command6")
        .Box("Compare", "", Icon::Question, Answer::Yes)
        .Check([&](Driver&) { EXPECT_EQ(Files.Content[North], FileWith("6.5")); });
    PlayToTheEnd();
}

TEST_F(CompareWindow, takes_nothing_over_into_what_another_program_has_changed_meanwhile) {
    Open()
        .Click(window, "Command4")
        .Do("change it", [&](Driver&) { Files.Content[North] = Second; })
        .Click(window, "Command6")
        .Box("Compare", "", Icon::Question, Answer::Yes)
        .Box("Compare", "", Icon::Exclamation)
        .Check([&](Driver& d) {
            EXPECT_EQ(Files.Content[North], Second);
            EXPECT_THAT(d.Text(window, "Label4"), HasSubstr("Both are equal"));
        });
    PlayToTheEnd();
}

TEST_F(CompareWindow, marks_only_what_can_be_taken_over_and_says_why_not) {
    Files.Content["/jobs/other.ini"] = "[General]\r\nProject=/else/where.KPJ\r\n";
    Open()
        .Select(window, "Combo2", 1)
        .Select(window, "Combo5", 2)
        .MarkRow(window, "ListView1", 1)
        .Check([&](Driver& d) {
            EXPECT_EQ(Form().ListView1.MarkedCount(), 0);
            EXPECT_THAT(d.Text(window, "Label4"), HasSubstr("choose that on the left side"));
        })
        .Select(window, "Combo2", 0)
        .Select(window, "Combo4", 2)
        .ChooseFile("/jobs/other.ini")
        .Check([&](Driver& d) {
            d.MarkRow(window, "ListView1", RowOfKey("Project"));
            EXPECT_EQ(Form().ListView1.MarkedCount(), 0);
            EXPECT_THAT(d.Text(window, "Label4"), HasSubstr("its own project"));
        })
        .Click(window, "Command4")
        .Check([&](Driver&) { EXPECT_GT(Form().ListView1.MarkedCount(), 5); })
        .Click(window, "Command5")
        .SeeEnabled(window, "Command6", false);
    PlayToTheEnd();
}

TEST_F(CompareWindow, swaps_its_sides_and_goes_back_where_no_file_is_chosen) {
    Open()
        .Click(window, "Command1")
        .SeeText(window, "Combo2", "3: 2023-03-10 08:00:00 Modify run, bob")
        .SeeText(window, "Combo5", "as it stands")
        .Select(window, "Combo1", 2)
        .ChooseFile(std::nullopt)
        .SeeText(window, "Combo1", "North")
        .Select(window, "Combo1", 1)
        .SeeText(window, "Label4", "South has no configuration.")
        .SeeEnabled(window, "Command8", false);
    PlayToTheEnd();
}

TEST_F(CompareWindow, tells_what_changed_in_the_whole_project_since_a_day) {
    TheStory.Menu(Main, "compare")
        .SeeText(window, "Text2", "2023-03-08")
        .Click(window, "Command2")
        .Tick(window, "Timer1")
        .SeeEnabled(window, "Command7")
        .Tick(window, "Timer1")
        .Check([&](Driver& d) {
            auto& list = Form().ListView1;
            EXPECT_EQ(list.At(1), (ui::ListView::Row{"", "North", "Run1", "Orifice Plate Internal Dia.",
                                                     "OrificeDia", "6.5 in", "5.0 in"}));
            EXPECT_EQ(list.Count(), 4);
            EXPECT_EQ(list.Cell(4, 1), "South");
            EXPECT_THAT(d.Text(window, "Label4"), HasSubstr("4 values changed since 2023-03-08"));
            d.MarkRow(window, "ListView1", 4);
            EXPECT_THAT(d.Text(window, "Label4"), HasSubstr("South has no configuration"));
        })
        .MarkRow(window, "ListView1", 1)
        .Click(window, "Command6")
        .Box("Compare", "", Icon::Question, Answer::Yes)
        .Check([&](Driver&) { EXPECT_EQ(Files.Content[North], FileWith("5.0", "MeterKind=x\r\n")); })
        .Click(window, "Command7");
    PlayToTheEnd();
}

TEST_F(CompareWindow, takes_no_file_that_it_cannot_read_for_an_empty_one) {
    TheStory.Do("lock it", [&](Driver&) { Files.Unreadable.insert(North); })
        .Menu(Main, "compare")
        .Click(window, "Command2")
        .Tick(window, "Timer1")
        .Tick(window, "Timer1")
        .Check([&](Driver& d) {
            EXPECT_EQ(Form().ListView1.Count(), 2);
            EXPECT_EQ(Form().ListView1.Cell(1, 1), "South");
            EXPECT_EQ(Form().ListView1.Cell(2, 1), "South");
            EXPECT_THAT(d.Text(window, "Label4"), HasSubstr("; cannot be read: North"));
        })
        .Do("let go of it", [&](Driver&) { Files.Unreadable.clear(); })
        .Click(window, "Command2")
        .Tick(window, "Timer1")
        .Tick(window, "Timer1")
        .Check([&](Driver& d) { EXPECT_THAT(d.Text(window, "Label4"), Not(HasSubstr("cannot be read"))); });
    PlayToTheEnd();
}

TEST_F(CompareWindow, gives_out_what_it_lists) {
    Open()
        .Click(window, "Command8")
        .Check([&](Driver&) {
            EXPECT_EQ(Screen.Copied, "Section\tVariable\tKey\tNorth as it stands\tNorth, entry 3\n"
                                     "Run1\tOrifice Plate Internal Dia.\tOrificeDia\t6.5 in\t6.0 in\n"
                                     "Run1\tMeterKind\tMeterKind\tx\t(none)\n");
        })
        .Click(window, "Command9")
        .ChooseFile("/jobs/out.csv")
        .Check([&](Driver&) { EXPECT_THAT(Files.Content["/jobs/out.csv"], HasSubstr("\"OrificeDia\"")); });
    PlayToTheEnd();
}

} // namespace
} // namespace gfc::test
