#pragma once

#include "plan/Copy.h"
#include "support/FakeRecorder.h"
#include "support/Fakes.h"
#include "support/MemoryFiles.h"

#include <functional>
#include <random>
#include <string>

// Two stations of one project that are built alike, in memory.
namespace gfc::test {

// What a tag of the one station is called in the other.
using Renaming = std::function<std::string(const std::string&)>;

class PlanWorld {
public:
    PlanWorld();

    // The station has this file, and for each register that it binds a tag, beside modules for the package's
    // own work. No key of the file names a register twice.
    void Configure(const std::string& station, const std::string& goldenFile);
    // The other station has the same modules with the same numbers of registers. Names and registers are
    // others; where shuffled, the tags within a module stand in another order.
    void BuildAlike(const std::string& station, const std::string& like, const Renaming& rename,
                    std::mt19937* shuffle = nullptr);

    [[nodiscard]] plan::Source SourceOf(const std::string& station);
    [[nodiscard]] plan::StationPlan PlanFor(const plan::Source& source, const std::string& station);
    [[nodiscard]] std::string FileOf(const std::string& station) const {
        return Project.ConfigFileOf(station);
    }
    [[nodiscard]] std::string& BytesOf(const std::string& station) { return Files.Content[FileOf(station)]; }
    [[nodiscard]] plan::Writer Writer() { return {Files, Library, Recorder, Project, "4711"}; }

    MemoryFiles Files;
    FakeLibrary Library;
    FakeRecorder Recorder;
    project::Project Project;
};

} // namespace gfc::test
