#include "workshop/command/Commands.h"
#include "workshop/command/Listing.h"
#include "workshop/load/Audit.h"
#include "workshop/load/Download.h"
#include "workshop/store/FilesToLoad.h"
#include "workshop/text/Paths.h"

#include <CLI/CLI.hpp>

#include <filesystem>
#include <iostream>
#include <memory>
#include <set>

namespace gfc::workshop {

namespace {

void ShowFiles(const std::string& path) {
    Project project = ProjectFor(path, Access::Read);
    std::vector<std::vector<std::string>> rows = {{"Station", "Target", "Local File"}};
    for (const FileToLoad& file : ListFilesToLoad(project)) {
        const bool there = std::filesystem::is_regular_file(LocalPath(project, file.Local));
        rows.push_back({file.Station, file.Target, file.Local + (there ? "" : " (missing)")});
    }
    PrintListing(std::cout, rows);
}

void AddFiles(CLI::App& app) {
    auto path = std::make_shared<std::string>();
    CLI::App* command = app.add_subcommand("files", "List the files that a download brings to the stations");
    AddProjectOption(*command, *path);
    command->footer("Example:\n  io-workshop files");
    command->callback([path] { ShowFiles(*path); });
}

// What the configurator's own check has against the files to be brought over. A file that is missing is told
// of by the download itself.
std::set<std::string> RefusedStations(Project& project) {
    const std::filesystem::path program = AuditProgram();
    std::set<std::string> stations;
    for (const FileToLoad& file : ListFilesToLoad(project)) {
        std::error_code error;
        if (std::filesystem::is_regular_file(LocalPath(project, file.Local), error)) {
            stations.insert(file.Station);
        }
    }
    return program.empty() ? std::set<std::string>() : StationsWithErrors(program, project, stations);
}

void CarryOut(const std::string& path, const std::string& folder, bool force, int& status) {
    Project project = ProjectFor(path, Access::Read);
    const auto refused = force ? std::set<std::string>() : RefusedStations(project);
    const DownloadResult result = Download(project, PathOf(folder), refused);
    for (const auto& file : result.Written) {
        std::cout << PathText(file) << '\n';
    }
    for (const std::string& fault : result.Faults) {
        Tell(fault);
    }
    std::cout << "Downloaded " << Counted(result.Written.size(), "file") << ".\n";
    status = result.Faults.empty() ? Succeeded : Failed;
}

void AddDownload(CLI::App& app, int& status) {
    struct Options {
        std::string Project;
        std::string Folder;
        bool Force = false;
    };
    auto options = std::make_shared<Options>();
    CLI::App* command =
        app.add_subcommand("download", "Copy every listed file to FOLDER/<station>/<target path>");
    command->add_option("FOLDER", options->Folder, "Folder that stands for the stations, made if needed")
        ->required();
    AddProjectOption(*command, options->Project);
    command->add_flag("--force", options->Force, "Bring over the files of stations with errors, too");
    command->footer(
        "Where gfc-audit stands beside this program it looks the files over first, and stations with "
        "errors are left out.\nExample:\n  io-workshop download ~/stations");
    command->callback(
        [options, &status] { CarryOut(options->Project, options->Folder, options->Force, status); });
}

} // namespace

void AddFileCommands(CLI::App& app, int& status) {
    AddFiles(app);
    AddDownload(app, status);
}

} // namespace gfc::workshop
