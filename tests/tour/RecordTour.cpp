#include "tour/RecordTour.h"

#include "scenarios/Moves.h"
#include "scenarios/StoredStation.h"
#include "tour/Workshop.h"

#include <QFile>
#include <gtest/gtest.h>

namespace gfc::tour {

namespace {

namespace moves = test::moves;
using test::Driver;
using test::Story;
using ui::Answer;
using ui::Icon;

const std::string history = "FrHistory";
const std::string compare = "FrCompare";
const std::string report = "FrReport";
const std::string check = "FrCheckStations";
// More parts than any of the windows has to do here.
constexpr int ticksEnough = 60;

void WaitFor(Story& story, const std::string& window, const std::string& timer) {
    for (int tick = 0; tick < ticksEnough; ++tick)
        story.Tick(window, timer);
}

// What the command says of the report, and whether it ends as it should.
void Verify(Story& story, const QString& file, const QString& project, int status) {
    story.Do("verify the report", [=](Driver&) {
        EXPECT_EQ(Beside(QStringLiteral("gfc-audit"),
                         {QStringLiteral("verify"), file, QStringLiteral("--project"), project}),
                  status);
    });
}

void EditAsAnother(Story& story, const std::string& station) {
    moves::StartUp(story, "0815");
    moves::Choose(story, moves::RunNode(1, station), "dRun");
    moves::SeeImage(story, moves::RunNode(1, station), "NoRun");
    moves::Choose(story, moves::RunNode(1, station), "erun");
    moves::SeeImage(story, moves::RunNode(1, station), "Run");
}

void LookAtTheHistory(Story& story) {
    story.Menu("GFCPrincipal", "history")
        .ClickRow(history, "ListView1", 1)
        .Check([](Driver& d) {
            EXPECT_EQ(d.Cell(history, "ListView1", 1, 3), "Enable run");
            EXPECT_EQ(d.Cell(history, "ListView1", 1, 4), "0815");
            EXPECT_EQ(d.Cell(history, "ListView1", d.Rows(history, "ListView1"), 4), "4711");
            EXPECT_GE(d.Rows(history, "ListView2"), 1);
        })
        .OpenRow(history, "ListView1", 2)
        .ClickRow("FrGeneration", "ListView1", 4)
        .Click("FrGeneration", "Command3")
        .Click(history, "Command2")
        .Box("History", "", Icon::Information)
        .ClickRow(history, "ListView1", 2)
        .Click(history, "Command5");
    story.SeeShown(compare)
        .Check([](Driver& d) { EXPECT_GE(d.Rows(compare, "ListView1"), 1); })
        .Click(compare, "Check1")
        .MarkRow(compare, "ListView1", 3)
        .Click(compare, "Command10")
        .Click(history, "Command9");
}

void CompareTheProject(Story& story) {
    story.Menu("GFCPrincipal", "compare").Click(compare, "Command2");
    WaitFor(story, compare, "Timer1");
    story.SeeEnabled(compare, "Command7", false).Click(compare, "Command10");
}

// What a copy to all that have no configuration would be, and what the station's own tags are called now;
// nothing is written.
void LookAtSeveral(Story& story, const std::string& station) {
    const std::string window = "FrPlanStations";
    story.ClickNode("GFCPrincipal", "TreeGFC", "All Stations\\" + station)
        .Menu("GFCPrincipal", "copySeveral")
        .Click(window, "Command2");
    WaitFor(story, window, "Timer1");
    story.ClickRow(window, "ListView1", 3)
        .Check([=](Driver& d) {
            EXPECT_GT(d.Rows(window, "ListView2"), 0);
            EXPECT_FALSE(d.Cell(window, "ListView1", 3, 3).empty());
        })
        .Click(window, "Command9")
        .Menu("GFCPrincipal", "bindAnew");
    WaitFor(story, window, "Timer1");
    story
        .Check([=](Driver& d) {
            EXPECT_GT(d.Rows(window, "ListView2"), 0);
            EXPECT_EQ(d.Cell(window, "ListView2", 1, 2), d.Cell(window, "ListView2", 1, 3));
        })
        .Click(window, "Command9");
}

void MakeTheReport(Story& story, const QString& file) {
    story.Menu("GFCPrincipal", "report").Click(report, "Command5").ChooseFile(file.toStdString());
    WaitFor(story, report, "Timer1");
    story
        .Check([=](Driver& d) {
            EXPECT_TRUE(d.Text(report, "Label5").starts_with("Written: ")) << d.Text(report, "Label5");
            EXPECT_TRUE(QFile::exists(file));
        })
        .Click(report, "Command6");
}

void Tamper(Story& story, const QString& file) {
    story.Do("write into the station's file", [=](Driver&) {
        QFile open(file);
        ASSERT_TRUE(open.open(QIODevice::ReadWrite));
        const QByteArray bytes = QByteArray(open.readAll()).replace("OrificeDia=", "OrificeDia=9");
        open.seek(0);
        open.write(bytes);
    });
}

// What has been tampered with is found before it goes out.
void CheckThePlant(Story& story) {
    story.Menu("GFCPrincipal", "checkStations");
    WaitFor(story, check, "Timer1");
    story
        .Check([](Driver& d) {
            EXPECT_GE(d.Rows(check, "ListView1"), 1);
            EXPECT_EQ(d.Cell(check, "ListView1", 1, 1), "error");
        })
        .ClickRow(check, "ListView1", 1)
        .Click(check, "Command5");
}

void BringBack(Story& story) {
    story.Menu("GFCPrincipal", "history")
        .ClickRow(history, "ListView1", 1)
        .Click(history, "Command6")
        .Box("History", "", Icon::Question, Answer::Yes)
        .Check([](Driver& d) {
            EXPECT_EQ(d.Cell(history, "ListView1", 1, 3), "Bring back");
            EXPECT_EQ(d.Cell(history, "ListView1", 2, 3), "Found changed");
        })
        .Click(history, "Command9");
}

} // namespace

void TellRecord(Story& story, const QDir& folder, const QString& station) {
    const QString project = folder.filePath(QStringLiteral("project/plant.KPJ"));
    const QString file = folder.filePath(QStringLiteral("project/KDOrmAGA_plant_%1.ini").arg(station));
    const QString paper = folder.filePath(QStringLiteral("report.pdf"));
    EditAsAnother(story, station.toStdString());
    LookAtTheHistory(story);
    CompareTheProject(story);
    LookAtSeveral(story, station.toStdString());
    MakeTheReport(story, paper);
    Verify(story, paper, project, 0);
    Tamper(story, file);
    Verify(story, paper, project, 1);
    CheckThePlant(story);
    BringBack(story);
    Verify(story, paper, project, 0);
    moves::Exit(story);
}

} // namespace gfc::tour
