#include "workshop/command/Commands.h"
#include "workshop/command/PlanListing.h"
#include "workshop/command/UseWarnings.h"
#include "workshop/import/TagImport.h"
#include "workshop/text/Paths.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>

namespace gfc::workshop {

namespace {

constexpr const char* Footer =
    "The first row names the columns, in any order: Station, Station Type, IP Address, Serial Number,\n"
    "Module, Module Type, Tag, Class, Register, Description. Type, address, serial number and\n"
    "description may be left out; a row without module and tag makes a station without tags. Commas,\n"
    "semicolons or tabs part the fields; the text is UTF-8 or else Windows-1252. The type of a virtual\n"
    "module begins with the word Virtual.\n"
    "A tag that the station has already, by its name, is changed where it stands, and an empty field\n"
    "leaves what is there. A new tag is delivered behind the last one of its module, or at the end. All\n"
    "of the table is taken or nothing; faults are told by row and column.\n"
    "\"io-workshop export-tags --template CSV\" makes a table to start from.\n"
    "Example:\n"
    "  io-workshop import-tags tags.csv --preview\n"
    "  io-workshop import-tags tags.csv\n"
    "with the table\n"
    "  Station,IP Address,Module,Module Type,Tag,Class,Register\n"
    "  North,10.0.0.5,VFX_RUN,Virtual Module,PIT-101,FX,1001";

struct ImportOptions {
    std::string Csv;
    std::string Project;
    bool Replace = false;
    bool Preview = false;
};

void TellComplaints(const std::string& csv, const std::vector<Complaint>& complaints) {
    for (const Complaint& complaint : complaints) {
        std::cerr << csv << ": " << TextOf(complaint) << '\n';
    }
    Tell(Counted(complaints.size(), "fault") + "; nothing was imported. Mend the table and import it again.");
}

// Of tags that a binding would no longer find as it has them.
void WarnOfLostBindings(const Project& project, const ImportPlan& plan) {
    std::vector<TagUse> lost;
    for (const StationPlan& station : plan.Stations) {
        std::vector<std::string> names;
        for (const Tag& tag : station.Removed) {
            names.push_back(tag.Name);
        }
        for (const TagChange& change : station.Changed) {
            if (change.Before.Class != change.After.Class ||
                change.Before.Register != change.After.Register) {
                names.push_back(change.Before.Name);
            }
        }
        AddUses(project, station.Before, names, lost);
    }
    WarnOf(lost);
}

std::string Conclusion(const ImportOptions& options, const Project& project, const ImportPlan& plan) {
    const std::string file = PathText(project.File());
    if (!ChangesAnything(plan)) {
        return file + " holds all of the table already; nothing was changed.";
    }
    return options.Preview ? "This was a preview; nothing was changed. Without --preview it is done."
                           : "Imported into " + file + ": " + TotalsOf(plan) + ".";
}

void Import(const ImportOptions& options, int& status) {
    Project project = ProjectFor(options.Project, options.Preview ? Access::Read : Access::Write);
    const ImportMode mode = options.Replace ? ImportMode::Replace : ImportMode::Merge;
    const ImportPlan plan = (options.Preview ? PlanImport : ImportTags)(project, PathOf(options.Csv), mode);
    if (!plan.Note.empty()) {
        Tell(options.Csv + ": " + plan.Note + ".");
    }
    if (!plan.Complaints.empty()) {
        TellComplaints(options.Csv, plan.Complaints);
        status = Failed;
        return;
    }
    PrintPlan(std::cout, plan, options.Preview ? Detail::Everything : Detail::Counts);
    std::cout << Conclusion(options, project, plan) << '\n';
    WarnOfLostBindings(project, plan);
}

} // namespace

void AddImportCommand(CLI::App& app, int& status) {
    auto options = std::make_shared<ImportOptions>();
    CLI::App* command =
        app.add_subcommand("import-tags", "Take a table of stations and tags into the project");
    command->add_option("CSV", options->Csv, "The table, as a spreadsheet saves it as CSV")->required();
    command->add_flag("--preview,--dry-run", options->Preview,
                      "Show what would be added, changed and removed, and change nothing");
    command->add_flag("--replace", options->Replace,
                      "Take out the tags that the table's stations have and the table has not");
    AddProjectOption(*command, options->Project);
    command->footer(Footer);
    command->callback([options, &status] { Import(*options, status); });
}

} // namespace gfc::workshop
