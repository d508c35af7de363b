#pragma once

#include "commands/Commands.h"
#include "config/FileIni.h"
#include "platform/Machine.h"
#include "record/ProjectRecorder.h"

#include <cstdint>
#include <string>

// The record and the configuration files of a project, as the commands come by them.
namespace gfc::commands {

struct ProjectFiles {
    std::string ProjectFile;
    std::string ProjectName;
    config::ProjectPaths Paths;

    [[nodiscard]] std::string Record() const { return config::RecordPath(Paths, ProjectName); }
    [[nodiscard]] std::string FileOf(std::string_view station) const {
        return config::ConfigFilePath(Paths, ProjectName, station);
    }
};

// By the project's file where one is given, which asks nobody; else the project that is open in the tool.
// Fails with NotToBeHad.
[[nodiscard]] ProjectFiles FilesOfProject(platform::Machine& machine, const std::string& projectFile);

[[nodiscard]] record::ProjectRecorder MakeRecorder(platform::Machine& machine);

// Fails with NotToBeHad if the last call could not read or write the record.
void DemandNoTrouble(config::Recorder& recorder);

// One state of a configuration: "North" is the file of the station as it stands, "North@12" the one that
// entry 12 of the record left, and "#3" behind either its run 3 alone. What names a file is that file.
struct Operand {
    std::string Text; // as it was given
    std::string Station;
    std::int64_t Entry = 0; // 0 for the file as it stands
    int Run = 0;            // 1 to 5; 0 for all
    std::string Bytes;
};

// Fails with WrongUse where there is no such state.
[[nodiscard]] Operand ReadOperand(const std::string& text, const std::string& projectFile,
                                  platform::Machine& machine);

} // namespace gfc::commands
