#include "commands/Json.h"
#include "commands/OpenProject.h"
#include "commands/RecordAccess.h"
#include "report/MakeReport.h"
#include "services/Counted.h"

#ifdef GFC_PDF
#include "report/pdf/Pdf.h"

#include <QGuiApplication>
#endif

#include <CLI/CLI.hpp>

#include <array>
#include <iostream>
#include <memory>

namespace gfc::commands {

namespace {

struct Options {
    std::vector<std::string> Stations;
    std::string Output, Project, User, Paper = "A4";
    std::optional<std::int64_t> Since;
    bool Json = false;
};

#ifdef GFC_PDF
// Text is laid out without a screen, which a machine may lack. Windows has one, and no other platform of the
// toolkit finds its fonts there.
#ifdef _WIN32
constexpr const char* Platform = "windows";
#else
constexpr const char* Platform = "offscreen";
#endif

std::string Pdf(const report::Report& made, const Options& options) {
    qputenv("QT_QPA_PLATFORM", Platform);
    std::array<char, 10> name{"gfc-audit"};
    std::array<char*, 2> arguments{name.data(), nullptr};
    int count = 1;
    const QGuiApplication application(count, arguments.data());
    return report::ToPdf(made, options.Paper == "A4" ? report::Paper::A4 : report::Paper::Letter);
}
#else
std::string Pdf(const report::Report&, const Options&) {
    throw Failure(exitcode::WrongUse, "this program was built without PDF; please ask for HTML.");
}
#endif

std::string FormOf(const report::Report& made, const Options& options) {
    if (options.Output.ends_with(".pdf"))
        return Pdf(made, options);
    return options.Json || options.Output.ends_with(".json") ? report::ToJson(made) : report::ToHtml(made);
}

// With a project's file alone nobody is asked for tags, and the stations must be named.
OpenProject ProjectOf(const Options& options, platform::Machine& machine) {
    if (options.Project.empty())
        return AskForProject(machine);
    if (options.Stations.empty())
        throw Failure(exitcode::WrongUse,
                      "name the stations to report: without the open project nobody knows them.");
    const ProjectFiles files = FilesOfProject(machine, options.Project);
    OpenProject open;
    open.Project.ProjectFile = files.ProjectFile;
    open.Project.ProjectName = files.ProjectName;
    open.Project.Paths = files.Paths;
    for (const std::string& name : options.Stations)
        open.Project.Stations.push_back({.Name = name, .Type = {}, .Address = {}});
    return open;
}

std::vector<std::string> NamesOf(const project::Project& project, const std::vector<std::string>& wanted) {
    if (!wanted.empty())
        return StationsNamed(project, wanted);
    std::vector<std::string> names;
    for (const project::Station& station : project.Stations)
        names.push_back(station.Name);
    return names;
}

void Run(const Options& options, Context context) {
    const OpenProject open = ProjectOf(options, context.Machine);
    auto recorder = MakeRecorder(context.Machine);
    const auto made = report::MakeReport({context.Machine, open.Library.get(), open.Project, recorder},
                                         {.Stations = NamesOf(open.Project, options.Stations),
                                          .User = options.User,
                                          .Since = options.Since,
                                          .Version = "gfc-configurator " GFC_VERSION});
    const std::string bytes = FormOf(made, options);
    if (options.Output.empty()) {
        std::cout << bytes;
        return;
    }
    if (!context.Machine.Files.Replace(options.Output, bytes))
        throw Failure(exitcode::NotToBeHad, "the report could not be written: " + options.Output + " (" +
                                                context.Machine.Files.LastFailure() + ")");
    std::cout << options.Output << ": " << services::Counted(made.Stations.size(), "station", "stations")
              << ", content " << report::ContentHash(made) << '\n';
}

} // namespace

void AddReportCommand(CLI::App& app, Context context) {
    auto options = std::make_shared<Options>();
    CLI::App* command = app.add_subcommand("report", "Make a report of the stations, to print and to sign");
    command->add_option("STATION", options->Stations, "Stations to report; all of them if none is named");
    command->add_option("--output,-o", options->Output,
                        "The file to make: .html, .pdf or .json; without it HTML is given out");
    AddUserOption(*command, options->User, "The user id that the cover shows");
    command->add_option("--since", options->Since, "List what was changed after this entry of the history");
    command->add_option("--paper", options->Paper, "A4 or Letter, for a PDF")
        ->check(CLI::IsMember({"A4", "Letter"}));
    command->add_flag("--json", options->Json, "Give out JSON");
    command->add_option("--project", options->Project, "The project's file; without it the open project");
    command->callback([options, context] { Run(*options, context); });
}

} // namespace gfc::commands
