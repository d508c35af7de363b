#include "workshop/command/Commands.h"
#include "workshop/demo/SampleProject.h"
#include "workshop/store/Failure.h"
#include "workshop/store/OpenProject.h"
#include "workshop/store/Stations.h"
#include "workshop/store/WholeFile.h"
#include "workshop/text/Paths.h"

#include <CLI/CLI.hpp>

#include <filesystem>
#include <iostream>
#include <memory>

namespace gfc::workshop {

namespace {

namespace fs = std::filesystem;

fs::path WholePath(const std::string& text) {
    return fs::absolute(PathOf(text)).lexically_normal();
}

void TellHowToOpen(const fs::path& file) {
    std::cout << "Open it with:\n  io-workshop open \"" << PathText(file) << "\"\n";
}

void NewProject(const std::string& path) {
    const fs::path file = WholePath(path);
    CheckProjectPath(file);
    MakeFolder(file.parent_path());
    static_cast<void>(Project::Create(file));
    std::cout << "Made the empty project " << PathText(file) << ".\n";
    TellHowToOpen(file);
}

void MakeDemo(const std::string& folder, bool force) {
    const SampleFiles files =
        MakeSample(WholePath(folder), force ? Existing::ReplaceSample : Existing::Refuse);
    std::cout << "Made the sample project " << PathText(files.Project) << "\n"
              << "and the configuration of one of its stations, " << PathText(files.Configuration) << ".\n";
    TellHowToOpen(files.Project);
    std::cout << "Then start the configurator.\n";
}

void OpenProject(const std::string& path) {
    const fs::path file = WholePath(path);
    CheckProjectPath(file);
    Project project = Project::Open(file, Access::Read);
    const std::size_t stations = ListStations(project).size();
    RecordProject(file);
    std::cout << "Opened " << PathText(file) << " (" << Counted(stations, "station") << ").\n";
}

void ShowOpenProject() {
    const auto recorded = RecordedProject();
    if (!recorded) {
        throw Failure("No project is open; open one with \"io-workshop open PROJECT.KPJ\".");
    }
    if (!fs::is_regular_file(*recorded)) {
        throw Failure(PathText(*recorded) + ": this project is open but no longer there; open another one.");
    }
    std::cout << PathText(*recorded) << '\n';
}

void CloseProject() {
    std::cout << (ForgetProject() ? "Closed the project.\n" : "No project was open.\n");
}

void AddNew(CLI::App& app) {
    auto path = std::make_shared<std::string>();
    CLI::App* command = app.add_subcommand("new", "Make a new, empty project");
    command
        ->add_option("PROJECT.KPJ", *path,
                     "File of the project; its name ends in .KPJ, its folder is made if needed")
        ->required();
    command->footer("Example:\n  io-workshop new ~/jobs/north.KPJ");
    command->callback([path] { NewProject(*path); });
}

void AddDemo(CLI::App& app) {
    struct Options {
        std::string Folder;
        bool Force = false;
    };
    auto options = std::make_shared<Options>();
    CLI::App* command = app.add_subcommand("demo", "Make the sample project plant.KPJ in a folder");
    command->add_option("FOLDER", options->Folder, "Folder for it, made if needed")->required();
    command->add_flag("--force", options->Force, "Make a sample that is there already anew");
    command->footer("Example:\n  io-workshop demo ~/plant");
    command->callback([options] { MakeDemo(options->Folder, options->Force); });
}

void AddOpen(CLI::App& app) {
    auto path = std::make_shared<std::string>();
    CLI::App* command = app.add_subcommand("open", "Open a project, or show which one is open");
    command->add_option("PROJECT.KPJ", *path, "File of the project; without it, the open one is shown");
    command->footer("Example:\n  io-workshop open ~/plant/plant.KPJ");
    command->callback([path] { path->empty() ? ShowOpenProject() : OpenProject(*path); });
}

void AddClose(CLI::App& app) {
    CLI::App* command = app.add_subcommand("close", "Close the open project");
    command->footer("Example:\n  io-workshop close");
    command->callback(CloseProject);
}

} // namespace

void AddProjectCommands(CLI::App& app) {
    AddNew(app);
    AddDemo(app);
    AddOpen(app);
    AddClose(app);
}

void AddProjectOption(CLI::App& command, std::string& project) {
    command.add_option("--project", project, "Work on this project instead of the open one")
        ->type_name("PROJECT.KPJ");
}

Project ProjectFor(const std::string& path, Access access) {
    if (!path.empty()) {
        return Project::Open(WholePath(path), access);
    }
    const auto recorded = RecordedProject();
    if (!recorded) {
        throw Failure("No project is open; open one with \"io-workshop open PROJECT.KPJ\".");
    }
    return Project::Open(*recorded, access);
}

} // namespace gfc::workshop
