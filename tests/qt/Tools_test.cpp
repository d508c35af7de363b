// The windows of the menu Tools as people work in them, with the mouse and with the keys alone.
#include "forms/program/StartUp.h"
#include "qt/support/KeyboardDriver.h"
#include "qt/support/Reading.h"
#include "qt/support/StoryScreen.h"
#include "scenarios/Moves.h"
#include "support/FakeReports.h"
#include "support/MemoryRecorder.h"
#include "support/TestFolders.h"

#include <QApplication>
#include <QDialog>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace gfc::test {

namespace {

using ui::Answer;
using ui::Icon;

const std::string mainWindow = "GFCPrincipal";
const std::string north = "All Stations\\North";

// North is configured, and was changed by another user since; South has no configuration.
struct Plant {
    explicit Plant(std::unique_ptr<WindowDriver> hands) : Screen(std::move(hands)) {
        moves::ThreeStations(Fake);
        std::string before = Golden("wizard/aga3_aga8_fixed.ini");
        before.replace(before.find("OrmStation="),
                       before.find('\r', before.find("OrmStation=")) - before.find("OrmStation="),
                       "OrmStation=North");
        std::string after = before;
        after.insert(after.find("OrificeDia=") + 11, "1");
        Enter("Configuration Wizard", "ana", {}, before);
        Enter("Modify run", "bob", before, after);
        Fake.Files.Content[File("North")] = after;
        Fake.Program.Reports = &Reports;
        Screen.BeforeStep = [this] { Look(); };
        moves::StartUp(TheStory);
        TheStory.ClickNode(mainWindow, "TreeGFC", north);
    }

    void Enter(const std::string& command, const std::string& user, config::FileState before,
               const std::string& after) {
        Recorder.Record({{"", "North", command, user, std::move(before), after}});
    }
    static std::string File(const std::string& station) { return "/jobs/KDOrmAGA_plant_" + station + ".ini"; }

    void Play() {
        moves::Exit(TheStory);
        forms::StartProgram(Fake.Program);
        Screen.RunToEnd();
        EXPECT_TRUE(Screen.Ended());
        EXPECT_THAT(complaints_, ::testing::IsEmpty());
    }

    // Whatever is shown in the tool's window can be read, also by a screen reader.
    void Look() {
        const QWidget* window = QApplication::activeWindow();
        if (window == nullptr || qobject_cast<const QDialog*>(window) != nullptr ||
            window->objectName() == QLatin1String("GFCPrincipal"))
            return;
        for (const auto& complaint : CutTexts(*window))
            complaints_.insert(complaint);
        for (const auto& complaint : Unnamed(*window))
            complaints_.insert(complaint);
    }

    MemoryRecorder Recorder;
    FakeReports Reports;
    StoryScreen Screen;
    FakeProgram Fake{Screen, Recorder};
    Story& TheStory = Screen.TheStory;

private:
    std::set<std::string> complaints_;
};

void History(Plant& plant) {
    const std::string window = "FrHistory";
    plant.TheStory.Menu(mainWindow, "history")
        .Check([=](Driver& d) { EXPECT_EQ(d.Rows(window, "ListView1"), 2); })
        .Type(window, "Text1", "orifice")
        .Type(window, "Text2", "bo")
        .Check([=](Driver& d) { EXPECT_EQ(d.Rows(window, "ListView1"), 1); })
        .ClickRow(window, "ListView1", 1)
        .Check([=](Driver& d) { EXPECT_EQ(d.Cell(window, "ListView2", 1, 2), "OrificeDia"); })
        .Type(window, "Text2", "")
        .Type(window, "Text1", "")
        .Select(window, "Combo2", 2)
        .Select(window, "Combo2", 0)
        .OpenRow(window, "ListView1", 2)
        .SeeShown("FrGeneration")
        .ClickRow("FrGeneration", "ListView1", 2)
        .Click("FrGeneration", "Command3")
        .Click(window, "Command2")
        .Box("History", "", Icon::Information)
        .Click(window, "Command6")
        .Box("History", "", Icon::Question, Answer::Yes)
        .Check([=](Driver& d) { EXPECT_EQ(d.Cell(window, "ListView1", 1, 3), "Bring back"); })
        .PressKey(window, "Escape")
        .SeeShown(window, false);
    plant.Play();
    EXPECT_TRUE(plant.Fake.Files.Content[Plant::File("North")] == plant.Recorder.Generation("", 1));
}

void Compare(Plant& plant) {
    const std::string window = "FrCompare";
    plant.TheStory.Menu(mainWindow, "compare")
        .Check([=](Driver& d) { EXPECT_EQ(d.Rows(window, "ListView1"), 1); })
        .Click(window, "Check1")
        .Type(window, "Text1", "orifice")
        .Check([=](Driver& d) { EXPECT_GT(d.Rows(window, "ListView1"), 1); })
        .Click(window, "Check1")
        .Click(window, "Command1")
        .Click(window, "Command1")
        .Select(window, "Combo3", 2)
        .Select(window, "Combo3", 0)
        .MarkRow(window, "ListView1", 1)
        .Click(window, "Command6")
        .Box("Compare", "", Icon::Question, Answer::Yes)
        .Check([=](Driver& d) { EXPECT_EQ(d.Rows(window, "ListView1"), 0) << "all is equal now"; })
        .Type(window, "Text2", "2023-01")
        .Click(window, "Command2")
        .Tick(window, "Timer1")
        .Tick(window, "Timer1")
        .Tick(window, "Timer1")
        .Click(window, "Command10");
    plant.Play();
    EXPECT_TRUE(plant.Fake.Files.Content[Plant::File("North")] == plant.Recorder.Generation("", 1));
}

// In a folder that is there: Windows' own would be asked how long its names may be.
#ifdef _WIN32
const std::string reportFile = "C:\\plant.pdf";
#else
const std::string reportFile = "/jobs/plant.pdf";
#endif

void Report(Plant& plant) {
    const std::string window = "FrReport";
    plant.TheStory.Menu(mainWindow, "report")
        .MarkRow(window, "ListView1", 2)
        .Click(window, "Command2")
        .MarkRow(window, "ListView1", 1)
        .Type(window, "Text1", "4712")
        .Select(window, "Combo2", 1)
        .Click(window, "Command5")
        .ChooseFile(reportFile);
    for (int tick = 0; tick < 4; ++tick)
        plant.TheStory.Tick(window, "Timer1");
    plant.TheStory.Check([=](Driver& d) { EXPECT_TRUE(d.Text(window, "Label5").starts_with("Written: ")); })
        .Click(window, "Command6");
    plant.Play();
    ASSERT_EQ(plant.Reports.Orders.size(), 1U);
    EXPECT_EQ(plant.Fake.Files.Content[reportFile], "the report");
}

void CopyToSeveral(Plant& plant) {
    const std::string window = "FrPlanStations";
    plant.TheStory.Menu(mainWindow, "copySeveral")
        .Click(window, "Command2")
        .Tick(window, "Timer1")
        .Tick(window, "Timer1")
        .Tick(window, "Timer1")
        .OpenRow(window, "ListView1", 2) // Empty has no tags, and is left out
        .ClickRow(window, "ListView1", 1)
        .ClickRow(window, "ListView2", 5)
        .SeeEnabled(window, "Combo1")
        .Select(window, "Combo1", 0)
        .Click(window, "Command4")
        .Click(window, "Command8")
        .Tick(window, "Timer1")
        .Tick(window, "Timer1")
        .Check([=](Driver& d) { EXPECT_TRUE(d.Cell(window, "ListView1", 1, 3).starts_with("written")); })
        .PressKey(window, "Escape")
        .SeeShown(window, false);
    plant.Play();
    EXPECT_TRUE(plant.Fake.Files.Content.contains(Plant::File("South")));
}

void BindAnew(Plant& plant) {
    const std::string window = "FrPlanStations";
    for (project::Tag& tag : plant.Fake.Library.TagsOf["North"])
        if (tag.TagName == "FT-2")
            tag.TagName = "PIT-77";
    plant.TheStory.Menu(mainWindow, "bindAnew")
        .Tick(window, "Timer1")
        .Tick(window, "Timer1")
        .Click(window, "Check1")
        .Click(window, "Check1")
        .Click(window, "Command7")
        .Tick(window, "Timer1")
        .Tick(window, "Timer1")
        .Click(window, "Command9");
    plant.Play();
    EXPECT_THAT(plant.Fake.Files.Content[Plant::File("North")], ::testing::HasSubstr("=PIT-77\r\n"));
}

struct Work {
    const char* Name;
    void (*Do)(Plant& plant);
};
constexpr Work works[] = {{"history", History},
                          {"compare", Compare},
                          {"report", Report},
                          {"copy_to_several", CopyToSeveral},
                          {"bind_anew", BindAnew}};

void PrintTo(const Work& work, std::ostream* out) {
    *out << work.Name;
}

} // namespace

class ToolWindows : public ::testing::TestWithParam<Work> {};

TEST_P(ToolWindows, work_with_the_mouse) {
    Plant plant(std::make_unique<WindowDriver>());
    GetParam().Do(plant);
}

TEST_P(ToolWindows, work_by_keys_alone) {
    Plant plant(std::make_unique<KeyboardDriver>());
    GetParam().Do(plant);
}

INSTANTIATE_TEST_SUITE_P(Tools, ToolWindows, ::testing::ValuesIn(works),
                         [](const auto& work) { return std::string(work.param.Name); });

} // namespace gfc::test
