#include "ToolRoom.h"
#include "forms/tools/FrReport.h"
#include "support/FakeReports.h"

#include <gmock/gmock.h>

namespace gfc::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

const std::string window = "FrReport";

struct ReportWindow : ToolRoom {
    ReportWindow() {
        Program.Reports = &Reports;
        Station.UserId = "ana";
    }
    FakeReports Reports;
    forms::FrReport& Form() { return Program.Forms.Get<forms::FrReport>(); }
    Story& Open() { return TheStory.Menu(Main, "report"); }
    Story& MakeTo(const std::string& file) { return TheStory.Click(window, "Command5").ChooseFile(file); }
    void PlayToTheEnd() {
        TheStory.Click(window, "Command6");
        Play();
    }
};

TEST_F(ReportWindow, offers_all_stations_and_makes_a_report_in_steps) {
    Open().SeeText(window, "Label5", "Chosen: 2 of 2 stations").SeeEnabled(window, "Command4", false);
    MakeTo("/jobs/plant.pdf")
        .SeeText(window, "Label5", "Making: 0 of 3 steps")
        .SeeEnabled(window, "ListView1", false)
        .SeeEnabled(window, "Command5", false)
        .Tick(window, "Timer1")
        .Tick(window, "Timer1")
        .Check([&](Driver&) { EXPECT_FALSE(Files.Content.contains("/jobs/plant.pdf")); })
        .Tick(window, "Timer1")
        .SeeText(window, "Label5", "Written: /jobs/plant.pdf; content c0ffee")
        .Check([&](Driver&) {
            EXPECT_EQ(Files.Content["/jobs/plant.pdf"], "the report");
            ASSERT_EQ(Reports.Orders.size(), 1U);
            EXPECT_THAT(Reports.Orders[0].Stations, ElementsAre("North", "South"));
            EXPECT_EQ(Reports.Orders[0].User, "ana");
            EXPECT_FALSE(Reports.Orders[0].Since);
            EXPECT_FALSE(Reports.Orders[0].Letter);
        });
    PlayToTheEnd();
}

TEST_F(ReportWindow, takes_the_marked_station_the_entry_and_the_paper) {
    TheStory.ClickNode(Main, "TreeGFC", "All Stations\\South").Menu(Main, "report");
    TheStory.SeeText(window, "Label5", "Chosen: 1 of 2 stations")
        .MarkRow(window, "ListView1", 2)
        .SeeEnabled(window, "Command5", false)
        .OpenRow(window, "ListView1", 1)
        .Type(window, "Text1", "bob")
        .Select(window, "Combo1", 4)
        .SeeText(window, "Combo1", "entry 3: 2023-03-10 08:00:00 Modify run, bob, North")
        .Select(window, "Combo2", 1);
    MakeTo("/jobs/one.html").Check([&](Driver&) {
        EXPECT_THAT(Reports.Orders.at(0).Stations, ElementsAre("North"));
        EXPECT_EQ(Reports.Orders.at(0).User, "bob");
        EXPECT_EQ(Reports.Orders.at(0).Since, 3);
        EXPECT_TRUE(Reports.Orders.at(0).Letter);
    });
    PlayToTheEnd();
}

TEST_F(ReportWindow, can_be_stopped_and_closed_on_the_way) {
    Open();
    MakeTo("/jobs/plant.pdf")
        .Tick(window, "Timer1")
        .Click(window, "Command4")
        .SeeText(window, "Label5", "Stopped: no report was made")
        .SeeEnabled(window, "Command5");
    MakeTo("/jobs/plant.pdf")
        .Tick(window, "Timer1")
        .CloseWindow(window)
        .Menu(Main, "report")
        .Check([&](Driver&) { EXPECT_FALSE(Files.Content.contains("/jobs/plant.pdf")); });
    PlayToTheEnd();
}

TEST_F(ReportWindow, says_that_it_could_not_be_written) {
    Open().Do("fill the disk", [&](Driver&) { Files.DiskFull = true; });
    MakeTo("/jobs/plant.pdf")
        .Tick(window, "Timer1")
        .Tick(window, "Timer1")
        .Tick(window, "Timer1")
        .Box("Report", "", ui::Icon::Exclamation)
        .SeeText(window, "Label5", "No report was written")
        .Check([&](Driver&) {
            EXPECT_THAT(Screen.BoxesShown.back().Text,
                        HasSubstr("The report could not be written to\r\n/jobs/plant.pdf"));
        });
    PlayToTheEnd();
}

} // namespace
} // namespace gfc::test
