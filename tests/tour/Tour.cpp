// The tour: the real program, on Qt's offscreen platform unless another is named, driven by real clicks and
// keys from splash to exit. It takes stations of the sample project through the wizard and through the daily
// work on their runs, and leaves a picture of every window.

#include "app/Application.h"
#include "forms/program/StartUp.h"
#include "platform/DynamicLibrary.h"
#include "qt/SystemLook.h"
#include "qt/support/Offscreen.h"
#include "record/BackgroundRecorder.h"
#include "record/ProjectRecorder.h"
#include "report/pdf/Pdf.h"
#include "scenarios/Moves.h"
#include "tour/DeskTour.h"
#include "tour/RecordTour.h"
#include "tour/RunsTour.h"
#include "tour/TourScreen.h"
#include "tour/Workshop.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTextStream>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>

namespace {

using namespace gfc;
namespace moves = test::moves;
using tour::Workshop;

const QString single = QStringLiteral("Eastfield_Meter");
const QString large = QStringLiteral("Northgate_Custody");
const QString skid = QStringLiteral("Skid_Añelo");
const QString delivery = QStringLiteral("Lakeside_Delivery");

void Print(const QString& line) {
    QTextStream(stdout) << line << Qt::endl;
}

// A fresh sample project in the folder, open in a workshop state of the tour's own. Of a tour that broke off
// there may be drafts.
bool PrepareProject(const QDir& folder) {
    for (const auto& old : {QStringLiteral("project"), QStringLiteral("state")})
        QDir(folder.filePath(old)).removeRecursively();
    qputenv("XDG_STATE_HOME", QFile::encodeName(folder.filePath(QStringLiteral("state"))));
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder.filePath(QStringLiteral("state"))));
    const QString project = folder.filePath(QStringLiteral("project"));
    return folder.mkpath(QStringLiteral("state")) && Workshop({QStringLiteral("demo"), project}) &&
           Workshop({QStringLiteral("new"), project + QStringLiteral("/second.KPJ")}) &&
           Workshop({QStringLiteral("open"), project + QStringLiteral("/plant.KPJ")});
}

void RemoveOldPictures(const QDir& folder) {
    const auto old = folder.entryList({QStringLiteral("*.png"), QStringLiteral("report.pdf")}, QDir::Files);
    for (const QString& picture : old)
        QFile::remove(folder.filePath(picture));
}

void ConfigureStation(test::Story& story, const QString& station, const moves::Choices& choices,
                      const std::vector<int>& runs) {
    moves::OpenWizard(story, station.toStdString());
    moves::SelectRuns(story, runs);
    moves::WalkPages(story, choices);
    moves::PassAllRuns(story, choices, runs);
    moves::SaveAndClose(story);
    story.Check([node = "All Stations\\" + station.toStdString()](test::Driver& d) {
        EXPECT_EQ(d.NodeImage("GFCPrincipal", "TreeGFC", node), "StationConfig");
    });
}

// Every page of what the main window says of the station and of its run.
void ReadSummaries(test::Story& story, const QString& station, int run) {
    const std::string window = "GFCPrincipal";
    const std::string node = "All Stations\\" + station.toStdString();
    story.ClickNode(window, "TreeGFC", node + "\\Common Parameters");
    for (const int tab : {1, 2, 0})
        story.SelectTab(window, "SSTab1", tab);
    story.ClickNode(window, "TreeGFC", node + "\\Individual Parameters\\Run " + std::to_string(run));
    for (const int tab : {1, 2, 3, 4, 0})
        story.SelectTab(window, "SSTab2", tab);
}

// Every tab of the configurator, on a station that is configured.
void LookAtTheConfigurator(test::Story& story, const QString& station) {
    const std::string form = "Configurador";
    story.ClickNode("GFCPrincipal", "TreeGFC", "All Stations\\" + station.toStdString())
        .Menu("GFCPrincipal", "ConfigPar")
        .Menu(form, "PG");
    for (const int tab : {1, 2, 3})
        story.SelectTab(form, "SSTab2", tab);
    story.Menu(form, "Salir2").Box("Orm Gas Flow Computer", "", ui::Icon::None, ui::Answer::Yes);
}

// A tag that the run is bound to gets another name in the project; the next edit of the run finds it out.
void EditWithATagRenamed(test::Story& story, const QString& station) {
    story
        .Do("rename a tag in the project",
            [station](test::Driver&) {
                EXPECT_TRUE(Workshop({QStringLiteral("rename-tag"), station, QStringLiteral("TIT-101_PV"),
                                      QStringLiteral("TIT-101_NEW")}));
            })
        .ClickNode("GFCPrincipal", "TreeGFC",
                   "All Stations\\" + station.toStdString() + "\\Individual Parameters\\Run 1")
        .Menu("GFCPrincipal", "ConfigPar")
        .Click("FrModificarTags", "Check2")
        .Click("FrModificarTags", "Command1")
        .Click("TagRuns", "Command5")
        .SeeShown("TagsChanged")
        .Click("TagsChanged", "CmdIgnore")
        .SeeShown("TagsChanged", false);
}

// A bore that is wider than its pipe; the quiet line says so.
void TypeWhatIsImplausible(test::Story& story, const QString& station) {
    story
        .ClickNode("GFCPrincipal", "TreeGFC",
                   "All Stations\\" + station.toStdString() + "\\Individual Parameters\\Run 1")
        .Menu("GFCPrincipal", "ConfigPar")
        .Click("FrModificarTags", "Check3")
        .Click("FrModificarTags", "Command1")
        .Type("FrParMec", "txtDiaOrif", "99.9")
        .SeeVisible("FrParMec", "Notes")
        .Click("FrParMec", "cmdCancel")
        .Box("Close mechanical parameters", "", ui::Icon::None, ui::Answer::Yes);
}

// A pass is left in the tags of its first run, goes on from there, and is let go of in the end.
void LeaveAPass(test::Story& story, const QString& station) {
    const moves::Choices choices{.Standard = 1, .Source = 1};
    const std::string window = "FrDrafts";
    moves::OpenWizard(story, station.toStdString());
    moves::SelectRuns(story, {1, 2});
    moves::WalkPages(story, choices);
    moves::PassUntil(story, choices, 1, 1);
    story.Click("TagRuns", "Command6").Box("Automatic Tags assignments", "", ui::Icon::Information);
    moves::CancelWindow(story, "TagRuns");
    story.Menu("GFCPrincipal", "drafts")
        .SeeText(window, "Label1", "1 draft")
        .Click(window, "Command3")
        .Box("Drafts", "", ui::Icon::Question, ui::Answer::Yes)
        .Click("Step", "Command1");
    moves::CancelWindow(story, "TagRuns");
    story.Menu("GFCPrincipal", "drafts")
        .Click(window, "Command2")
        .Box("Drafts", "", ui::Icon::Question, ui::Answer::Yes)
        .Click(window, "Command4");
}

void Tell(test::Story& story, const QDir& folder) {
    moves::StartUp(story);
    tour::TellDesk(story, large);
    ConfigureStation(story, single, {}, {1});
    ConfigureStation(story, large, {.Standard = 1, .Source = 1}, {1, 2, 3});
    ConfigureStation(story, skid, {.Standard = 2, .Source = 2}, {1});
    ConfigureStation(story, delivery, {.Standard = 3, .Source = 1, .Chromatograph = true}, {1});
    for (const QString& station : {single, large, skid, delivery})
        ReadSummaries(story, station, 1);
    LookAtTheConfigurator(story, large);
    LeaveAPass(story, large);
    TypeWhatIsImplausible(story, single);
    EditWithATagRenamed(story, single);
    tour::TellRuns(story, folder, large);
    moves::Exit(story);
}

bool PrintResults(const QDir& folder) {
    Print(QString());
    for (const QString& station : {skid, delivery, single, large}) {
        const QString file = folder.filePath(QStringLiteral("project/KDOrmAGA_plant_%1.ini").arg(station));
        if (!QFile::exists(file))
            return false;
        Print(file);
    }
    Print(QString());
    return Workshop({QStringLiteral("files")});
}

// From one start of the program to its end; how many pictures there are by then, 0 if it went wrong.
int PlayOnce(const QDir& folder, int pictures, const std::function<void(test::Story& story)>& tell) {
    platform::RealMachine machine;
    const platform::Machine seams = machine.Seams();
    tour::TourScreen screen(folder.absolutePath(), pictures);
    record::ProjectRecorder entries(seams.Clock, seams.TimeZone, seams.Paths.UserName());
    record::BackgroundRecorder recorder(entries);
    report::ReportFileWriter reports(seams, recorder, "gfc-configurator", report::MakePdf);
    app::Application program(seams, screen, recorder, &reports);
    tell(screen.TheStory);
    if (!program.Start(platform::LoadLibraryAt))
        return 0;
    screen.RunToEnd();
    return screen.TheStory.Done() && !::testing::Test::HasFailure() ? screen.Pictures() : 0;
}

int Play(const QDir& folder) {
    int pictures = PlayOnce(folder, 0, [&](test::Story& story) { Tell(story, folder); });
    if (pictures > 0)
        pictures =
            PlayOnce(folder, pictures, [&](test::Story& story) { tour::TellRecord(story, folder, skid); });
    Print(QStringLiteral("%1 pictures in %2").arg(pictures).arg(folder.absolutePath()));
    return PrintResults(folder) && pictures > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

struct Options {
    QString Folder; // empty if the arguments say nothing of use
    int Scale = 1;
    bool Dark = false;
};

Options OptionsOf(int argc, char* argv[]) {
    Options options;
    for (int i = 1; i < argc; ++i) {
        const QString argument = QString::fromLocal8Bit(argv[i]);
        if (argument == QLatin1String("--dark"))
            options.Dark = true;
        else if (options.Folder.isEmpty())
            options.Folder = QDir(argument).absolutePath();
        else
            options.Scale = std::max(1, argument.toInt());
    }
    return options;
}

} // namespace

int main(int argc, char* argv[]) {
    ::testing::InitGoogleTest(&argc, argv);
    const Options options = OptionsOf(argc, argv);
    if (options.Folder.isEmpty()) {
        QTextStream(stderr) << "usage: gfc-tour FOLDER [SCALE] [--dark]" << Qt::endl;
        return 2;
    }
    qputenv("QT_SCALE_FACTOR", QByteArray::number(options.Scale));
    test::UseOffscreenPlatform(options.Scale);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    // Windows in memory look alike on every machine, those on a screen as the program's own.
    if (QApplication::platformName() == QStringLiteral("offscreen"))
        qt::TakeOwnLook();
    else
        qt::TakeSystemLook();
    QApplication::setQuitOnLastWindowClosed(false);
    if (options.Dark)
        test::UseDarkPalette();
    const QDir folder(options.Folder);
    if (!folder.mkpath(QStringLiteral(".")) || !PrepareProject(folder))
        return EXIT_FAILURE;
    RemoveOldPictures(folder);
    return Play(folder);
}
