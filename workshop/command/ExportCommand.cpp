#include "workshop/command/Commands.h"
#include "workshop/demo/SampleTags.h"
#include "workshop/export/TagExport.h"
#include "workshop/import/CsvFile.h"
#include "workshop/store/Failure.h"
#include "workshop/store/WholeFile.h"
#include "workshop/text/Paths.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <iterator>
#include <memory>

namespace gfc::workshop {

namespace {

constexpr const char* Footer =
    "The table holds stations, modules and tags in the order of delivery, and nothing of it is lost:\n"
    "imported into an empty project it gives the same ones. A file begins with the mark by which\n"
    "spreadsheets know UTF-8; what goes to the standard output does not.\n"
    "Example:\n"
    "  io-workshop export-tags tags.csv\n"
    "  io-workshop export-tags - --station Lakeside_Delivery\n"
    "  io-workshop export-tags --template my-station.csv";

struct Separator {
    const char* Name;
    char Character;
};

constexpr Separator Separators[] = {{"comma", ','}, {"semicolon", ';'}, {"tab", '\t'}};

std::vector<std::string> SeparatorNames() {
    std::vector<std::string> names;
    for (const Separator& separator : Separators) {
        names.emplace_back(separator.Name);
    }
    return names;
}

char SeparatorNamed(const std::string& name) {
    const auto* found = std::find_if(std::begin(Separators), std::end(Separators),
                                     [&](const Separator& separator) { return separator.Name == name; });
    return found->Character; // the names were checked when the arguments were read
}

struct ExportOptions {
    std::string Csv;
    std::string Station;
    std::string Project;
    std::string Separator = "comma";
    bool Template = false;
    bool Force = false;
};

std::vector<StationTags> StationsToExport(const ExportOptions& options) {
    if (options.Template) {
        return {TemplateStation()};
    }
    Project project = ProjectFor(options.Project, Access::Read);
    return StationTagsOf(project, options.Station);
}

void WriteTable(const std::filesystem::path& file, const std::string& table, bool force) {
    if (!force && std::filesystem::exists(file)) {
        throw Failure(PathText(file) + ": there is a file of this name already; --force replaces it.");
    }
    ReplaceWhole(file, std::string(ByteOrderMark) + table);
}

void Export(const ExportOptions& options) {
    const std::vector<StationTags> stations = StationsToExport(options);
    const std::string table = TagTableText(stations, SeparatorNamed(options.Separator));
    if (options.Csv == "-") {
        std::cout << table;
        return;
    }
    WriteTable(PathOf(options.Csv), table, options.Force);
    std::size_t tags = 0;
    for (const StationTags& station : stations) {
        tags += station.Tags.size();
    }
    std::cout << "Wrote " << Counted(tags, "tag") << " of " << Counted(stations.size(), "station") << " to "
              << options.Csv << ".\n";
}

} // namespace

void AddExportCommand(CLI::App& app) {
    auto options = std::make_shared<ExportOptions>();
    CLI::App* command =
        app.add_subcommand("export-tags", "Write stations and tags as a table for a spreadsheet");
    command->add_option("CSV", options->Csv, "File to write, or - for the standard output")->required();
    CLI::Option* station =
        command->add_option("--station", options->Station, "Only this station")->type_name("STATION");
    command->add_option("--separator", options->Separator, "What parts the fields: comma, semicolon or tab")
        ->check(CLI::IsMember(SeparatorNames()).description(""))
        ->type_name("NAME");
    command
        ->add_flag("--template", options->Template,
                   "Write one whole station as an example to change into your own; no project is needed")
        ->excludes(station);
    command->add_flag("--force", options->Force, "Replace a file that is there already");
    AddProjectOption(*command, options->Project);
    command->footer(Footer);
    command->callback([options] { Export(*options); });
}

} // namespace gfc::workshop
