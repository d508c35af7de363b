#include "tour/RunsTour.h"

#include "forms/runs/AddRunStory.h"
#include "scenarios/ModifyMoves.h"
#include "scenarios/StoredStation.h"
#include "tour/Workshop.h"

#include <QFile>
#include <gtest/gtest.h>

namespace gfc::tour {

namespace {

namespace moves = test::moves;
namespace modify = test::modify;
using test::Driver;
using test::Story;
using ui::Answer;
using ui::Icon;

const QString other = QStringLiteral("Quarry_Turbine");

QString ProjectFile(const QDir& folder, const QString& name) {
    return folder.filePath(QStringLiteral("project/") + name);
}

QString ConfigurationOf(const QString& station) {
    return QStringLiteral("KDOrmAGA_plant_%1.ini").arg(station);
}

// What the station's file holds under that key of run 2.
QString TagOfRun2(const QDir& folder, const QString& station, const char* key) {
    QFile file(ProjectFile(folder, ConfigurationOf(station)));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    const test::FileText text(file.readAll().toStdString());
    return QString::fromStdString(text.Value("Run2", key).value_or(""));
}

void BreakTwoTags(Story& story, const QDir& folder, const QString& station) {
    story.Do("rename two tags in the project", [=](Driver&) {
        for (const char* key : {"GasTempKDIOTag", "ResetTotalsKDIOTag"}) {
            const QString tag = TagOfRun2(folder, station, key);
            EXPECT_TRUE(Workshop({QStringLiteral("rename-tag"), station, tag, tag + QStringLiteral("_B")}));
        }
    });
}

// An edit of another run finds the errors, and writes them to the log.
void FindThem(Story& story, const std::string& station) {
    moves::Choose(story, moves::RunNode(3, station), "ConfigPar");
    modify::TickAndAccept(story, {2});
    modify::Continue(story);
    story.SeeShown("TagsChanged")
        .Click("TagsChanged", "Command1")
        .Click("TagsChanged", "Command3")
        .SeeShown("TagsChanged", false);
}

void EnableAndMend(Story& story, const std::string& station) {
    const std::string run2 = moves::RunNode(2, station);
    moves::Choose(story, run2, "erun");
    story.Box("Failed enable run", "", Icon::Question, Answer::Yes);
    // It is off now; to configure a run that is off is to enable it.
    moves::Choose(story, "All Stations\\" + station, "ConfigPar");
    story.Menu("Configurador", "Salir2").Box("Orm Gas Flow Computer", "", Icon::None, Answer::Yes);
    moves::SeeImage(story, run2, "NoRun");
    moves::Choose(story, run2, "ConfigPar");
    moves::SeeImage(story, run2, "Run");
    moves::Choose(story, run2, "ConfigPar");
    modify::TickAndAccept(story, {1});
    modify::Rebind(story, "AGA 7 Inputs\\Temperature");
    modify::Rebind(story, "AGA 7 Inputs\\Reset");
    modify::Continue(story);
    modify::AskedToSave(story, Icon::Information);
}

void AddRun4(Story& story, const std::string& station) {
    moves::Choose(story, moves::RunNode(4, station), "erun");
    story.Box("Configure Run", "", Icon::Information, Answer::Yes);
    test::AddRunStory({.Standard = 1, .Source = 1, .Run = 4}).Through(story);
    test::AddRunStory::Finish(story, Answer::Yes);
    moves::SeeImage(story, moves::RunNode(4, station), "Run");
}

void Copy(Story& story, const QDir& folder, const std::string& node) {
    moves::Choose(story, node, "copiar1");
    story.SeeText("frCopyStation", "Combo1", other.toStdString())
        .Click("frCopyStation", "Command1")
        .Box("Copy configuration from a station to another station within the same project...", "",
             Icon::Information);
    moves::SeeImage(story, moves::RunNode(4, other.toStdString()), "Run");
    moves::Choose(story, node, "copiar2");
    story.ChooseFile(ProjectFile(folder, QStringLiteral("second.KPJ")).toStdString())
        .Prompt("Name of the destination station to configure", "Harbour_Custody")
        .Box("Copy configuration from a station to another station of another project", "", Icon::Information)
        .Check([=](Driver&) {
            EXPECT_TRUE(
                QFile::exists(ProjectFile(folder, QStringLiteral("KDOrmAGA_second_Harbour_Custody.ini"))));
        });
}

void DisableAndDelete(Story& story, const QDir& folder, const std::string& station) {
    moves::Choose(story, moves::RunNode(3, station), "dRun");
    moves::SeeImage(story, moves::RunNode(3, station), "NoRun");
    moves::Choose(story, "All Stations\\" + other.toStdString(), "undo");
    story.Box("Delete Configuration", "", Icon::None, Answer::Yes).Check([=](Driver&) {
        EXPECT_FALSE(QFile::exists(ProjectFile(folder, ConfigurationOf(other))));
    });
}

} // namespace

void TellRuns(Story& story, const QDir& folder, const QString& station) {
    const std::string name = station.toStdString();
    BreakTwoTags(story, folder, station);
    FindThem(story, name);
    EnableAndMend(story, name);
    AddRun4(story, name);
    Copy(story, folder, "All Stations\\" + name);
    DisableAndDelete(story, folder, name);
}

} // namespace gfc::tour
