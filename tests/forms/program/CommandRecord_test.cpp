#include "forms/main_window/GFCPrincipal.h"
#include "forms/program/CommandRecord.h"
#include "support/FakeRecorder.h"
#include "support/InJobs.h"
#include "support/World.h"

#include <gmock/gmock.h>

namespace gfc::forms {
namespace {

using config::FileChange;
using config::FileState;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class CommandRecordTest : public testing::Test {
protected:
    CommandRecordTest() {
        TheWorld.AddStation("North", {});
        TheWorld.AddStation("South", {});
        TheWorld.OpenProject();
        TheWorld.Station.UserId = "ana";
        North = TheWorld.ConfigFile("North");
        South = TheWorld.ConfigFile("South");
    }

    void Run(std::string_view name, const std::function<void(Program&)>& command) {
        RunRecorded(TheWorld.Program, name, [&] { command(TheWorld.Program); });
    }

    test::FakeRecorder Recorder;
    test::World TheWorld{Recorder};
    std::string North;
    std::string South;
};

const Storage::Telling lost{"Nothing is stored."};

void Write(Program& program, const std::string& section, const std::string& key, const std::string& value,
           const std::string& file) {
    EXPECT_TRUE(program.Storage.Change(
        lost, file, [&](config::FileIni& ini) { ini.WriteKey(section, key, value, file); }));
}

const std::string record = test::InJobs("KDOrmAGA_plant_History.sqlite");

TEST_F(CommandRecordTest, HandsOverWhatACommandChangedWithWhatStoodThereBefore) {
    TheWorld.Files.Content[North] = "[A]\r\nk=1\r\n";
    Run("Configure", [&](Program& program) {
        Write(program, "A", "k", "2", North);
        Write(program, "A", "k", "3", North);
    });
    ASSERT_THAT(Recorder.Recorded, SizeIs(1));
    const FileChange& change = Recorder.Recorded.front();
    EXPECT_EQ(change.Record, record);
    EXPECT_EQ(change.Station, "North");
    EXPECT_EQ(change.Command, "Configure");
    EXPECT_EQ(change.User, "ana");
    EXPECT_EQ(change.Before, "[A]\r\nk=1\r\n");
    EXPECT_EQ(change.After, "[A]\r\nk=3\r\n");
}

TEST_F(CommandRecordTest, SeesBatchesSectionsCopiesAndDeletions) {
    TheWorld.Files.Content[North] = "[A]\r\nk=1\r\n";
    Run("all", [&](Program& program) {
        EXPECT_TRUE(program.Storage.Change(lost, North, [&](config::FileIni& ini) {
            ini.WriteSection("B", {{"x", "1"}}, North);
        }));
        EXPECT_TRUE(program.Storage.Copy(lost, North, South));
        EXPECT_TRUE(program.Storage.TryToDelete(North));
    });
    ASSERT_THAT(Recorder.Recorded, SizeIs(2));
    EXPECT_EQ(Recorder.Recorded[0].Before, "[A]\r\nk=1\r\n");
    EXPECT_EQ(Recorder.Recorded[0].After, std::nullopt);
    EXPECT_EQ(Recorder.Recorded[1].Station, "South");
    EXPECT_EQ(Recorder.Recorded[1].Before, std::nullopt);
    EXPECT_EQ(Recorder.Recorded[1].After, "[A]\r\nk=1\r\n[B]\r\nx=1\r\n");
}

TEST_F(CommandRecordTest, LeavesOtherFilesAlone) {
    Run("log", [&](Program& program) {
        Write(program, "A", "k", "1", "/jobs/KDOrmAGA_plant_North_Errors.log");
        Write(program, "A", "k", "1", "/jobs/tmpTags_plant_North.ini");
    });
    EXPECT_THAT(Recorder.Recorded, IsEmpty());
}

TEST_F(CommandRecordTest, ACopyToAnotherProjectIsEnteredThere) {
    Run("copy", [](Program& program) {
        const std::string far = "/other/KDOrmAGA_plant_two_Far_1.ini";
        Write(program, "General", "Project", "/other/plant_two.KPJ", far);
        Write(program, "General", "OrmStation", "Far_1", far);
    });
    ASSERT_THAT(Recorder.Recorded, SizeIs(1));
    EXPECT_EQ(Recorder.Recorded[0].Record,
              platform::WithOwnSeparators("/other/KDOrmAGA_plant_two_History.sqlite"));
    EXPECT_EQ(Recorder.Recorded[0].Station, "Far_1");
}

TEST_F(CommandRecordTest, EnablingThatBringsARunIsAddingIt) {
    TheWorld.Files.Content[North] = "[FlowRuns]\r\nRun3=No\r\nRun33=No\r\n";
    const auto enable = [&](Program& program) { Write(program, "FlowRuns", "Run3", "Yes", North); };
    Run(config::command::EnableRun, enable);
    Run(config::command::EnableRun,
        [&](Program& program) { Write(program, "FlowRuns", "Run33", "Yes", North); });
    EXPECT_EQ(Recorder.Recorded[0].Command, "Enable run");
    EXPECT_EQ(Recorder.Recorded[1].Command, "Add run");
}

TEST_F(CommandRecordTest, LooksAtWhatCouldNotBeReadBefore) {
    TheWorld.Files.Content[North] = "[A]\r\nk=1\r\n";
    TheWorld.Files.Unreadable.insert(North);
    Run("Delete", [&](Program& program) { EXPECT_TRUE(program.Storage.TryToDelete(North)); });
    ASSERT_THAT(Recorder.Recorded, SizeIs(1));
    EXPECT_EQ(Recorder.Recorded[0].Station, "North");
    EXPECT_EQ(Recorder.Recorded[0].Before, std::nullopt);
    EXPECT_EQ(Recorder.Recorded[0].After, std::nullopt) << "the record finds by itself that it is gone";
}

TEST_F(CommandRecordTest, LeavesOutAndTellsWhatCannotBeReadAfter) {
    TheWorld.Files.Content[North] = "[A]\r\nk=1\r\n";
    Run("Configure", [&](Program& program) {
        Write(program, "A", "k", "2", North);
        TheWorld.Files.Unreadable.insert(North);
    });
    EXPECT_THAT(Recorder.Recorded, IsEmpty());
    EXPECT_EQ(TheWorld.Program.Forms.Get<GFCPrincipal>().StatusBar1.PanelText(1),
              "History not written. The file cannot be read: " + North);
}

TEST_F(CommandRecordTest, TheStartLooksAtEveryStation) {
    TheWorld.Files.Content[North] = "[A]\r\nk=1\r\n";
    LookAtAllStations(TheWorld.Program);
    ASSERT_THAT(Recorder.Recorded, SizeIs(2));
    EXPECT_EQ(Recorder.Recorded[0].Before, Recorder.Recorded[0].After);
    EXPECT_EQ(Recorder.Recorded[0].After, "[A]\r\nk=1\r\n");
    EXPECT_EQ(Recorder.Recorded[1].Station, "South");
    EXPECT_EQ(Recorder.Recorded[1].After, std::nullopt);
}

TEST_F(CommandRecordTest, TroubleIsToldOnceInTheStatusBar) {
    auto& window = TheWorld.Program.Forms.Get<GFCPrincipal>();
    const auto tell = [&] {
        Run("Configure", [&](Program& program) { Write(program, "A", "k", "1", North); });
        window.recordTimer.Tick();
        return window.StatusBar1.PanelText(1);
    };
    EXPECT_EQ(tell(), "");
    Recorder.TheTrouble = "x.sqlite: the disk is full.";
    EXPECT_EQ(tell(), "History not written. x.sqlite: the disk is full.");
    window.StatusBar1.SetPanelText(1, "other");
    EXPECT_EQ(tell(), "other");
    Recorder.TheTrouble = "";
    EXPECT_EQ(tell(), "other");
    Recorder.TheTrouble = "again";
    EXPECT_EQ(tell(), "History not written. again");
}

TEST_F(CommandRecordTest, WaitsAsLongAsTheRecorderIsAtWork) {
    auto& window = TheWorld.Program.Forms.Get<GFCPrincipal>();
    Recorder.Busy = true;
    Recorder.TheTrouble = "late";
    Run("Configure", [](Program&) {});
    window.recordTimer.Tick();
    EXPECT_EQ(window.StatusBar1.PanelText(1), "");
    Recorder.Busy = false;
    window.recordTimer.Tick();
    EXPECT_EQ(window.StatusBar1.PanelText(1), "History not written. late");
    EXPECT_FALSE(window.recordTimer.Enabled());
}

} // namespace
} // namespace gfc::forms
