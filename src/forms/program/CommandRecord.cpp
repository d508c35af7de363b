#include "forms/program/CommandRecord.h"

#include "forms/main_window/GFCPrincipal.h"
#include "forms/main_window/StationNodes.h"
#include "forms/program/Program.h"
#include "platform/Machine.h"
#include "platform/Profile.h"
#include "services/CodePage.h"
#include "services/Text.h"
#include "services/Utilidades.h"

#include <algorithm>

namespace gfc::forms {

namespace {

using config::FileChange;
using config::FileState;

// Whose file it is.
struct Owner {
    std::string Project;
    std::string Station;
};

std::string ReadGeneral(const std::string& bytes, std::string_view key) {
    return services::FromCodePage(platform::Profile(bytes).Read("General", key));
}

// By what the file says of itself, where that gives its name; what a person has renamed is the open
// project's.
Owner OwnerOf(const std::string& name, const std::string& bytes, const std::string& openProject) {
    const Owner said{project::ProjectNameOf(ReadGeneral(bytes, "Project")), ReadGeneral(bytes, "OrmStation")};
    if (!said.Station.empty() && services::EqualNoCase(said.Project + "_" + said.Station, name))
        return {name.substr(0, said.Project.size()), name.substr(said.Project.size() + 1)};
    if (name.starts_with(openProject + "_"))
        return {openProject, name.substr(openProject.size() + 1)};
    const auto cut = name.find('_');
    return {name.substr(0, cut), cut == std::string::npos ? std::string() : name.substr(cut + 1)};
}

FileChange ChangeOf(const Program& program, const std::string& path, FileState before, FileState after) {
    const auto paths = config::PathsOf(path);
    const auto name = config::NameInConfigFile(path).value_or(std::string());
    const Owner owner =
        OwnerOf(name, after ? *after : before.value_or(std::string()), program.Session.Project.ProjectName);
    return {.Record = config::RecordPath(paths, owner.Project),
            .Station = owner.Station,
            .Command = {},
            .User = program.Session.Station.UserId,
            .Before = std::move(before),
            .After = std::move(after)};
}

// False where a file is there and cannot be read.
bool ReadState(platform::Files& files, const std::string& path, FileState& state) {
    state = files.Read(path);
    return state || !files.Exists(path);
}

// The flag beside a run's section, which says that the run has one, comes with the section alone.
bool BringsARun(const FileChange& change) {
    const auto isFlagOfSection = [](const config::KeyChange& key) {
        return services::EqualNoCase(key.Section, "FlowRuns") && key.Key.size() == 5 &&
               services::EqualNoCase(key.Key.substr(0, 3), "Run") && key.Key[3] == key.Key[4];
    };
    const auto changes =
        config::ChangesOf(change.Before.value_or(std::string()), change.After.value_or(std::string()));
    return std::ranges::any_of(changes, isFlagOfSection);
}

// A command that leads over to another one is entered as that one.
std::string_view NameFor(std::string_view command, const FileChange& change) {
    return command == config::command::EnableRun && BringsARun(change) ? config::command::AddRun : command;
}

// Each record takes what is its own.
void HandOver(config::Recorder& recorder, std::vector<FileChange> changes) {
    std::map<std::string, std::vector<FileChange>> byRecord;
    for (FileChange& change : changes)
        byRecord[change.Record].push_back(std::move(change));
    for (auto& [record, own] : byRecord)
        recorder.Record(std::move(own));
}

} // namespace

TouchedFiles::TouchedFiles(Program& program) : program_(program) {
    program_.Storage.Watch([this](const std::string& file) { Note(file); });
}

TouchedFiles::~TouchedFiles() {
    program_.Storage.Watch({});
}

void TouchedFiles::Note(const std::string& file) {
    if (!config::NameInConfigFile(file) || before_.contains(file))
        return;
    FileState state;
    if (!ReadState(program_.Machine.Files, file, state))
        unknown_.insert(file);
    before_.emplace(file, std::move(state));
}

std::vector<FileChange> TouchedFiles::Changes(std::string_view command,
                                              std::vector<std::string>& unread) const {
    std::vector<FileChange> changes;
    for (const auto& [path, before] : before_) {
        FileState after;
        if (!ReadState(program_.Machine.Files, path, after)) {
            unread.push_back(path);
            continue;
        }
        const bool known = !unknown_.contains(path);
        auto& change = changes.emplace_back(ChangeOf(program_, path, known ? before : after, after));
        change.Command = NameFor(command, change);
    }
    return changes;
}

void RunRecorded(Program& program, std::string_view name, const std::function<void()>& command) {
    program.Recorder.Settle();
    const TouchedFiles touched(program);
    command();
    std::vector<std::string> unread;
    HandOver(program.Recorder, touched.Changes(name, unread));
    if (program.Screen.Ended())
        return;
    auto& window = program.Forms.Get<GFCPrincipal>();
    window.WatchRecord();
    if (!unread.empty())
        window.StatusBar1.SetPanelText(1, "History not written. The file cannot be read: " + unread.front());
}

std::string_view NameOfConfigure(Program& program) {
    const std::string& selected = program.Session.SelectedNodeText;
    const auto& tree = program.Forms.Get<GFCPrincipal>().TreeGFC;
    const int node = tree.FindPath(program.Session.SelectedPath);
    const bool isRun = node::RunOf(selected) > 0;
    if (isRun && node > 0 && tree.At(node).Image == "NoRun")
        return config::command::EnableRun;
    return isRun || selected == node::IndividualParameters ? config::command::ModifyRun
                                                           : config::command::Configure;
}

void LookAtAllStations(Program& program) {
    const auto& project = program.Session.Project;
    std::vector<FileChange> looks;
    for (const project::Station& station : project.Stations) {
        const std::string file = project.ConfigFileOf(station.Name);
        FileState state;
        if (file.empty() || !ReadState(program.Machine.Files, file, state))
            continue;
        looks.push_back({.Record = config::RecordPath(project.Paths, project.ProjectName),
                         .Station = services::TrimFixedString(station.Name),
                         .Command = {},
                         .User = {},
                         .Before = state,
                         .After = state});
    }
    program.Recorder.Record(std::move(looks));
    program.Forms.Get<GFCPrincipal>().WatchRecord();
}

} // namespace gfc::forms
