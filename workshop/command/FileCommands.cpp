#include "workshop/command/Commands.h"
#include "workshop/command/Listing.h"
#include "workshop/load/Download.h"
#include "workshop/store/FilesToLoad.h"
#include "workshop/text/Paths.h"

#include <CLI/CLI.hpp>

#include <filesystem>
#include <iostream>
#include <memory>

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

void CarryOut(const std::string& path, const std::string& folder, int& status) {
    Project project = ProjectFor(path, Access::Read);
    const DownloadResult result = Download(project, PathOf(folder));
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
    };
    auto options = std::make_shared<Options>();
    CLI::App* command =
        app.add_subcommand("download", "Copy every listed file to FOLDER/<station>/<target path>");
    command->add_option("FOLDER", options->Folder, "Folder that stands for the stations, made if needed")
        ->required();
    AddProjectOption(*command, options->Project);
    command->footer("Example:\n  io-workshop download ~/stations");
    command->callback([options, &status] { CarryOut(options->Project, options->Folder, status); });
}

} // namespace

void AddFileCommands(CLI::App& app, int& status) {
    AddFiles(app);
    AddDownload(app, status);
}

} // namespace gfc::workshop
