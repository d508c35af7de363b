#include "commands/RecordAccess.h"

#include "commands/OpenProject.h"
#include "config/VarINIFile.h"
#include "project/Project.h"

#include <charconv>

namespace gfc::commands {

namespace {

// Takes the mark and the number behind it off the end of the text; 0 and the text as it was without them.
std::int64_t TakeNumber(std::string& text, char mark) {
    const auto at = text.rfind(mark);
    std::int64_t number = 0;
    if (at == std::string::npos || at + 1 == text.size())
        return 0;
    const auto [end, error] = std::from_chars(text.data() + at + 1, text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || number <= 0)
        return 0;
    text.resize(at);
    return number;
}

std::string ReadEntry(const Operand& operand, const std::string& record, platform::Machine& machine) {
    auto recorder = MakeRecorder(machine);
    for (const config::RecordEntry& entry : recorder.Entries(record, operand.Station))
        if (entry.Number == operand.Entry) {
            if (auto bytes = recorder.Generation(record, operand.Entry))
                return *bytes;
            DemandNoTrouble(recorder);
            throw Failure(exitcode::WrongUse, "entry " + std::to_string(operand.Entry) + " of station \"" +
                                                  operand.Station + "\" left no file.");
        }
    DemandNoTrouble(recorder);
    throw Failure(exitcode::WrongUse, "the history has no entry " + std::to_string(operand.Entry) +
                                          " of a station \"" + operand.Station + "\".");
}

std::string ReadStation(const Operand& operand, const ProjectFiles& project, platform::Machine& machine) {
    if (operand.Entry != 0)
        return ReadEntry(operand, project.Record(), machine);
    const std::string file = project.FileOf(operand.Station);
    if (auto bytes = machine.Files.Read(file))
        return *bytes;
    throw Failure(exitcode::WrongUse, "the station \"" + operand.Station +
                                          "\" has no configuration, or it cannot be read: " + file);
}

} // namespace

ProjectFiles FilesOfProject(platform::Machine& machine, const std::string& projectFile) {
    if (projectFile.empty()) {
        const OpenProject open = AskForProject(machine);
        return {open.Project.ProjectFile, open.Project.ProjectName, open.Project.Paths};
    }
    ProjectFiles project{projectFile, project::ProjectNameOf(projectFile), config::PathsOf(projectFile)};
    if (project.Paths.ConfigFilePrefix.empty()) // a name alone stands in the folder in which one is
        project.Paths = config::PathsOf(std::string(".") + platform::Separator + projectFile);
    return project;
}

record::ProjectRecorder MakeRecorder(platform::Machine& machine) {
    return {machine.Clock, machine.TimeZone, machine.Paths.UserName()};
}

void DemandNoTrouble(config::Recorder& recorder) {
    if (const std::string trouble = recorder.Trouble(); !trouble.empty())
        throw Failure(exitcode::NotToBeHad, trouble);
}

Operand ReadOperand(const std::string& text, const std::string& projectFile, platform::Machine& machine) {
    Operand operand{.Text = text, .Station = text, .Bytes = {}};
    if (auto bytes = machine.Files.Read(text)) {
        operand.Bytes = *std::move(bytes);
        return operand;
    }
    const std::int64_t run = TakeNumber(operand.Station, '#');
    if (run > config::MaxRuns)
        throw Failure(exitcode::WrongUse, "a station has runs 1 to 5: " + text);
    operand.Run = static_cast<int>(run);
    if (auto bytes = machine.Files.Read(operand.Station)) {
        operand.Bytes = *std::move(bytes);
        return operand;
    }
    operand.Entry = TakeNumber(operand.Station, '@');
    operand.Bytes = ReadStation(operand, FilesOfProject(machine, projectFile), machine);
    return operand;
}

} // namespace gfc::commands
