#pragma once

#include "platform/Machine.h"
#include "project/AddOnLibrary.h"

#include <map>
#include <string>
#include <tuple>
#include <vector>

namespace gfc::test {

class FakeSingleInstance : public platform::SingleInstance {
public:
    bool Free = true;
    bool Acquire(std::string_view) override { return Free; }
};

class FakeLauncher : public platform::Launcher {
public:
    bool Works = true;
    std::vector<std::string> Started;
    bool Start(const std::string& program, const std::vector<std::string>& arguments) override;
    bool OpenTextFile(const std::string& path, platform::ViewerWindow window) override;
};

class FakePaths : public platform::Paths {
public:
    std::string ExecutableFolder() override { return "/opt/gfc"; }
    std::string ProfileFolder() override { return "/etc/profiles"; }
    std::string OwnFolder() override { return Own; }
    std::string UserName() override { return "operator"; }

    std::string Own = "/home/operator/.state";
};

// The I/O Workshop tool with a project open in it.
class FakeLibrary : public project::AddOnLibrary {
public:
    std::string ProjectFile = "/jobs/plant.KPJ";
    bool StationListWorks = true;
    std::vector<project::Station> Stations;
    std::map<std::string, project::TagList> TagsOf;
    // Station, local path, target path of each entry.
    std::vector<std::tuple<std::string, std::string, std::string>> FilesToLoad;
    // Every call, by name, in order: "AddFileToLoad North".
    std::vector<std::string> Calls;
    // What happens while it takes its time over a station; may be empty.
    std::function<void()> WhileAsked;

    std::string GetProjectFile() override;
    std::optional<std::vector<project::Station>> GetStations() override;
    project::TagList ReadTags(const std::string& station, const std::string& projectFile,
                              const std::function<void(std::string_view)>& onTag) override;
    void AddFileToLoad(const std::string& station, const std::string& local,
                       const std::string& target) override;
    int RemoveFileToLoad(const std::string& station, const std::string& local,
                         const std::string& target) override;
    void CoInitialize() override { Calls.emplace_back("CoInitialize"); }
};

// count tags of one class in one module: names are stem + number from 1, registers count from firstRegister.
[[nodiscard]] project::TagList TagsInModule(const std::string& module, const std::string& moduleType,
                                            const std::string& regType, const std::string& stem, int count,
                                            int firstRegister = 1);
project::TagList& operator+=(project::TagList& tags, const project::TagList& more);

// A station that carries five runs of every kind: working modules "VL0" (8 LX), "VA0" (32 AX) and "VF0" (128
// FX), then module "VF1" of freeFloats FX tags "FT-1"..., "VL1" of 10 LX tags "PI-1"..., physical AX
// "AI-1"... (20) and AY "AO-1"... (20), physical X "XS-1"... (40) and Y "XV-1"... (40).
[[nodiscard]] project::TagList LargeStationTags(int freeFloats = 300);

} // namespace gfc::test
