#pragma once

#include "forms/program/Program.h"
#include "support/FakeTime.h"
#include "support/Fakes.h"
#include "support/HeadlessScreen.h"
#include "support/MemoryFiles.h"

#include <string>

namespace gfc::test {

// The program in a world of fakes, before any screen: project "/jobs/plant.KPJ" with nothing in it yet.
struct FakeProgram {
    explicit FakeProgram(ui::Screen& screen);
    // The same, but for the files: these in the place of those in memory, which then stay empty.
    FakeProgram(ui::Screen& screen, platform::Files& onDisk);
    FakeProgram(ui::Screen& screen, config::Recorder& recorder);
    FakeProgram(ui::Screen& screen, platform::Files& onDisk, config::Recorder& recorder);

    MemoryFiles Files;
    FixedZone TimeZone{0};
    FixedClock Clock{2023, 3, 15, 12, 0};
    FakeSingleInstance SingleInstance;
    FakeLauncher Launcher;
    FakePaths Paths;
    FakeLibrary Library;
    config::NoRecorder NoRecord;
    platform::Machine Machine;
    forms::Program Program;
    // Another program's hand: writes behind the back of this one.
    config::FileIni Hand{Machine.Files};

    // Shorthands of what tests touch most.
    forms::Session& Session = Program.Session;
    config::StationConfig& Station = Program.Session.Station;

    // Adds a station with its tags to the tool's project.
    void AddStation(const std::string& name, project::TagList tags);
    // The project as start-up leaves it: read from the library, the paths set.
    void OpenProject();
    // The station as the commands open it: current, tags read and sorted, working modules chosen, lists of
    // free tags built without the first candidates of each kind.
    void OpenStation(const std::string& name);
    // Runs flagged active, and the records prepared for them.
    void ActivateRuns(const std::vector<int>& runs);
    [[nodiscard]] std::string ConfigFile(const std::string& station) const;
};

struct HasHeadlessScreen {
    HeadlessScreen Screen;
};

// The same on the headless screen, to which the test tells its story.
struct World : HasHeadlessScreen, FakeProgram {
    World() : FakeProgram(Screen) {}
    explicit World(config::Recorder& recorder) : FakeProgram(Screen, recorder) {}
    Story& TheStory = Screen.TheStory;
};

} // namespace gfc::test
