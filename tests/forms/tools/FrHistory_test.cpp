#include "ToolRoom.h"
#include "forms/tools/FrCompare.h"
#include "forms/tools/FrGeneration.h"
#include "forms/tools/FrHistory.h"

#include <gmock/gmock.h>

namespace gfc::test {

namespace {

using testing::HasSubstr;
using ui::Answer;
using ui::Icon;

const std::string window = "FrHistory";

struct History : ToolRoom {
    forms::FrHistory& Form() { return Program.Forms.Get<forms::FrHistory>(); }
    Story& Open() { return TheStory.Menu(Main, "history"); }
    // The numbers of the entries that are listed, in the order of the rows.
    std::string Listed() {
        std::string numbers;
        for (int row = 1; row <= Form().ListView1.Count(); ++row)
            numbers += Form().ListView1.Cell(row, 0);
        return numbers;
    }
    void PlayToTheEnd() {
        TheStory.Click(window, "Command9");
        Play();
    }
};

TEST_F(History, lists_the_newest_first_with_who_did_what_and_how_many_keys_it_changed) {
    Open().Check([&](Driver& d) {
        EXPECT_EQ(Listed(), "54321");
        EXPECT_EQ(Form().ListView1.At(3), (ui::ListView::Row{"3", "2023-03-10 08:00:00", "North",
                                                             "Modify run", "bob", "operator", "1"}));
        EXPECT_THAT(Form().ListView1.Cell(2, 6), HasSubstr("no file"));
        EXPECT_EQ(d.Text(window, "Label7"), "5 entries");
        EXPECT_FALSE(Form().Timer1.Enabled());
    });
    PlayToTheEnd();
}

TEST_F(History, begins_with_the_station_that_is_selected) {
    TheStory.ClickNode(Main, "TreeGFC", "All Stations\\South").Menu(Main, "history").Check([&](Driver& d) {
        EXPECT_EQ(d.Text(window, "Combo1"), "South");
        EXPECT_EQ(Listed(), "42");
        EXPECT_EQ(d.Text(window, "Label7"), "2 of 5 entries");
    });
    PlayToTheEnd();
}

TEST_F(History, filters_by_station_run_variable_user_and_time) {
    const auto sees = [&](const std::string& numbers) {
        TheStory.Check([this, numbers](Driver&) { EXPECT_EQ(Listed(), numbers); });
    };
    Open().Select(window, "Combo1", 1);
    sees("531");
    TheStory.Select(window, "Combo1", 0).Select(window, "Combo2", 1);
    sees("531");
    TheStory.Select(window, "Combo2", 3);
    sees("");
    TheStory.Select(window, "Combo2", 0).Type(window, "Text1", "ORIFICE PLATE");
    sees("531");
    TheStory.Type(window, "Text1", "meterkind");
    sees("5");
    TheStory.Type(window, "Text1", "").Type(window, "Text2", "AN");
    sees("41");
    TheStory.Type(window, "Text2", "")
        .Type(window, "Text3", "2023-03-02 08:00")
        .Type(window, "Text4", "2023-03-12");
    sees("432");
    PlayToTheEnd();
}

TEST_F(History, shows_old_and_new_of_the_entry_that_is_selected) {
    Open().ClickRow(window, "ListView1", 3).Check([&](Driver&) {
        ASSERT_EQ(Form().ListView2.Count(), 1);
        EXPECT_EQ(Form().ListView2.At(1), (ui::ListView::Row{"Run1", "Orifice Plate Internal Dia.",
                                                             "OrificeDia", "5.0 in", "6.0 in"}));
    });
    TheStory.SeeEnabled(window, "Command6").ClickRow(window, "ListView1", 2);
    for (const char* command : {"Command4", "Command5", "Command6"})
        TheStory.SeeEnabled(window, command, false);
    PlayToTheEnd();
}

TEST_F(History, shows_a_generation_on_the_pages_of_the_summaries) {
    const std::string pages = "FrGeneration";
    Open()
        .OpenRow(window, "ListView1", 5)
        .SeeCaption(pages, "North, entry 1")
        .Check([&](Driver& d) {
            EXPECT_EQ(d.Text(pages, "Label1"),
                      "Entry 1: Configuration Wizard, 2023-03-01 08:00:00 UTC, ana (logged on as operator)");
            EXPECT_EQ(d.Cell(pages, "ListView1", 1, 0), "Common Parameters");
            EXPECT_GT(d.Rows(pages, "ListView2"), 3);
        })
        .Check([&](Driver& d) {
            auto& list = Program.Forms.Get<forms::FrGeneration>().ListView1;
            d.ClickRow(pages, "ListView1", RowOf(list, 0, "Run 1: Parameters"));
            EXPECT_EQ(d.Cell(pages, "ListView2", 2, 1), "Internal Dia.");
            EXPECT_EQ(d.Cell(pages, "ListView2", 2, 2), "5.0 in");
        })
        .Click(pages, "Command2")
        .ChooseFile("/jobs/first.ini")
        .Check([&](Driver&) { EXPECT_EQ(Files.Content["/jobs/first.ini"], First); })
        .Click(pages, "Command3");
    PlayToTheEnd();
}

TEST_F(History, brings_a_generation_back_byte_for_byte_and_enters_it) {
    Open()
        .ClickRow(window, "ListView1", 5)
        .Click(window, "Command6")
        .Box("History", "", Icon::Question, Answer::No)
        .Check([&](Driver&) { EXPECT_EQ(Files.Content[North], Present); })
        .Click(window, "Command6")
        .Box("History", "", Icon::Question, Answer::Yes)
        .Check([&](Driver&) {
            EXPECT_EQ(Files.Content[North], First);
            EXPECT_EQ(Listed(), "654321");
            EXPECT_EQ(Form().ListView1.Cell(1, 3), "Bring back");
            EXPECT_THAT(Screen.BoxesShown.back().Text, HasSubstr("which stays in the history"));
            EXPECT_EQ(Screen.BoxesShown.back().AtStake, "North");
        })
        .ClickRow(window, "ListView1", 6)
        .Click(window, "Command6")
        .Box("History", "The station's configuration already is the one that this entry left.",
             Icon::Information);
    PlayToTheEnd();
}

TEST_F(History, brings_a_deleted_station_back) {
    Open()
        .ClickRow(window, "ListView1", 4)
        .Click(window, "Command6")
        .Box("History", "", Icon::Question, Answer::Yes)
        .Check([&](Driver& d) {
            EXPECT_EQ(Files.Content[South], Souths);
            EXPECT_THAT(Screen.BoxesShown.back().Text, HasSubstr("has no configuration now"));
            EXPECT_EQ(d.NodeImage(Main, "TreeGFC", "All Stations\\South"), "StationConfig");
        });
    PlayToTheEnd();
}

TEST_F(History, puts_nothing_over_a_configuration_that_cannot_be_read) {
    Open()
        .Do("lock it", [&](Driver&) { Files.Unreadable.insert(North); })
        .ClickRow(window, "ListView1", 5)
        .Click(window, "Command6")
        .Box("History", "", Icon::Exclamation)
        .Check([&](Driver&) {
            EXPECT_EQ(Files.Content[North], Present);
            EXPECT_THAT(Screen.BoxesShown.back().Text, HasSubstr("cannot be read, and is left as it is"));
        });
    PlayToTheEnd();
}

TEST_F(History, leaves_everything_as_it_is_where_the_disk_refuses) {
    Open()
        .Do("fill the disk", [&](Driver&) { Files.DiskFull = true; })
        .ClickRow(window, "ListView1", 5)
        .Click(window, "Command6")
        .Box("History", "", Icon::Question, Answer::Yes)
        .Box("History", "", Icon::Exclamation, Answer::Close)
        .Check([&](Driver&) {
            EXPECT_EQ(Files.Content[North], Present);
            EXPECT_THAT(Screen.BoxesShown.back().Text, HasSubstr("The configuration was not brought back."));
        });
    PlayToTheEnd();
}

TEST_F(History, compares_an_entry_with_what_stands_now) {
    Open().ClickRow(window, "ListView1", 3).Click(window, "Command5").Check([&](Driver& d) {
        EXPECT_EQ(d.Text("FrCompare", "Combo1"), "North");
        EXPECT_EQ(d.Text("FrCompare", "Combo5"), "3: 2023-03-10 08:00:00 Modify run, bob");
        EXPECT_EQ(Program.Forms.Get<forms::FrCompare>().ListView1.Count(), 2);
    });
    TheStory.Click("FrCompare", "Command10");
    PlayToTheEnd();
}

TEST_F(History, verifies_in_steps_and_names_what_does_not_hold) {
    Recorder.Check = {.Entries = 2, .LastHash = "abc", .Damage = config::RecordDamage{3, "It was changed."}};
    Recorder.Steps = 2;
    Open()
        .Click(window, "Command2")
        .SeeEnabled(window, "Command3")
        .Tick(window, "Timer2")
        .SeeText(window, "Label7", "Verifying: 2 of 5 entries")
        .Tick(window, "Timer2")
        .Box("History", "Entry 3 of the history does not hold.\r\nIt was changed.", Icon::Critical)
        .Do("mend it", [&](Driver&) { Recorder.Check = {.Entries = 5, .LastHash = "abc", .Damage = {}}; })
        .Click(window, "Command2")
        .Click(window, "Command3")
        .SeeText(window, "Label7", "5 entries")
        .Click(window, "Command2")
        .Tick(window, "Timer2")
        .Tick(window, "Timer2")
        .Box("History", "The history holds, with 5 entries.\r\n\r\nHash of the last entry:\r\nabc",
             Icon::Information);
    PlayToTheEnd();
}

TEST_F(History, shows_each_value_with_the_units_of_its_own_time) {
    std::string metric = Present;
    metric.replace(metric.find("SystemUnits=US"), 14, "SystemUnits=Metric");
    metric.replace(metric.find("OrificeDia=6.5"), 14, "OrificeDia=165.1");
    Recorder.Record({{"", "North", "Configure", "eve", Present, metric}});
    Open().ClickRow(window, "ListView1", 1).Check([&](Driver&) {
        const int row = RowOf(Form().ListView2, 2, "OrificeDia");
        EXPECT_EQ(Form().ListView2.Cell(row, 3), "6.5 in");
        EXPECT_EQ(Form().ListView2.Cell(row, 4), "165.1 mm");
    });
    PlayToTheEnd();
}

TEST_F(History, looks_at_thousands_bit_by_bit_and_can_be_stopped) {
    for (int entry = 6; entry <= 350; ++entry)
        Recorder.Record({{"", "North", "Configure", "eve", FileWith(std::to_string(entry)),
                          FileWith(std::to_string(entry + 1))}});
    Open()
        .SeeText(window, "Label7", "Looking: 100 of 350 entries")
        .Tick(window, "Timer1")
        .Click(window, "Command3")
        .SeeText(window, "Label7", "Stopped: 200 of 350 entries")
        .Type(window, "Text2", "ana")
        .Tick(window, "Timer1")
        .Tick(window, "Timer1")
        .Tick(window, "Timer1")
        .SeeText(window, "Label7", "2 of 350 entries")
        .SeeEnabled(window, "Command3", false)
        .Check([&](Driver&) { EXPECT_EQ(Listed(), "41"); });
    PlayToTheEnd();
}

TEST_F(History, gives_out_each_change_with_its_entry) {
    Open()
        .Type(window, "Text1", "orifice")
        .Click(window, "Command7")
        .Check([&](Driver&) {
            EXPECT_THAT(Screen.Copied,
                        HasSubstr("3\t2023-03-10 08:00:00\tNorth\tModify run\tbob\toperator\tRun1\t"
                                  "Orifice Plate Internal Dia.\tOrificeDia\t5.0 in\t6.0 in\n"));
        })
        .Click(window, "Command8")
        .ChooseFile("/jobs/out.html")
        .Check([&](Driver&) {
            EXPECT_EQ(Screen.TargetChoices.back().Name, "plant_history.csv");
            EXPECT_THAT(Files.Content["/jobs/out.html"], HasSubstr("<h1>History of plant</h1>"));
        });
    PlayToTheEnd();
}

TEST_F(History, says_why_it_cannot_be_read) {
    struct : config::NoRecorder {
        std::string Trouble() override { return "x.sqlite: it is damaged."; }
    } broken;
    HeadlessScreen screen;
    FakeProgram program(screen, broken);
    program.OpenProject();
    auto& form = program.Program.Forms.Get<forms::FrHistory>();
    form.Show();
    EXPECT_EQ(form.Label7.Caption(), "The history cannot be read. x.sqlite: it is damaged.");
    form.Unload();
}

} // namespace
} // namespace gfc::test
