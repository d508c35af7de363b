#include "workshop/command/Commands.h"
#include "workshop/command/PlanListing.h"
#include "workshop/command/ProgressLine.h"
#include "workshop/command/UseWarnings.h"
#include "workshop/import/SavedMapping.h"
#include "workshop/import/TagImport.h"
#include "workshop/text/Letters.h"
#include "workshop/text/Paths.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <limits>
#include <memory>
#include <set>
#include <sstream>

namespace gfc::workshop {

namespace {

constexpr const char* Footer =
    "One row holds the titles of the columns, in any order: Station, Station Type, IP Address, Serial "
    "Number,\n"
    "Module, Module Type, Tag, Class, Register, Description. Type, address, serial number and description\n"
    "may be left out; a row without module and tag makes a station without tags. The type of a virtual "
    "module\n"
    "begins with the word Virtual; a module with floats or longs is taken as one where nobody says its "
    "type.\n"
    "A tag that the station has already, by its name, is changed where it stands, and an empty field\n"
    "leaves what is there. A new tag is delivered behind the last one of its module, or at the end. All\n"
    "of the table is taken or nothing; faults are told by row and column.\n"
    "Tables of other tools: usual titles in English, Spanish and Portuguese are known (Point Name, "
    "Direccion\n"
    "Modbus, Data Type, ...), also below some rows of a name and a date; all others are named by --map.\n"
    "Classes like FLOAT, AO or \"digital input\" are understood, the direction from a column (in, out, R/W)\n"
    "or --direction. Registers may be 1201, 1201.0, 0x4B1 or R:1201; where all of them stand in one area of\n"
    "a register map, as 40001 and up, they count from its start, unless --register-base says otherwise.\n"
    "Commas, semicolons, tabs or bars part the fields; the text is UTF-8, UTF-16 or else Windows-1252. A\n"
    "preview says how the table was read.\n"
    "\"io-workshop export-tags --template CSV\" makes a table to start from.\n"
    "Example:\n"
    "  io-workshop import-tags tags.csv --preview\n"
    "  io-workshop import-tags tags.csv\n"
    "  io-workshop import-tags points.txt --station North --map \"PT_NAME=Tag\" --map \"ADR=Register\"\n"
    "      --ignore-unknown --save-mapping historian --preview\n"
    "  io-workshop import-tags more.txt --mapping historian\n"
    "with the table\n"
    "  Station,IP Address,Module,Module Type,Tag,Class,Register\n"
    "  North,10.0.0.5,VFX_RUN,Virtual Module,PIT-101,FX,1001";

struct ImportOptions {
    std::string Csv;
    std::string Project;
    bool Replace = false;
    bool Preview = false;
    std::string Mapping;
    std::string SaveMapping;
    std::vector<std::string> Maps;
    std::vector<std::string> ModuleTypes;
    TableWishes Told; ///< all other wishes as the command line has them
};

// What was kept under a name, and over it what this command line says.
TableWishes WishesOf(const ImportOptions& options) {
    TableWishes wishes = options.Mapping.empty() ? TableWishes{} : LoadMapping(options.Mapping);
    for (const std::string& text : options.Maps) {
        const TextPair pair = SplitPair(text, "--map");
        std::erase_if(wishes.Columns, [&](const ColumnWish& each) {
            return SameName(each.Theirs, pair.Left) || SameName(each.Ours, pair.Right);
        });
        wishes.Columns.push_back({pair.Left, pair.Right});
    }
    for (const std::string& text : options.ModuleTypes) {
        const TextPair pair = SplitPair(text, "--module-type");
        std::erase_if(wishes.ModuleTypes,
                      [&](const ModuleWish& each) { return SameName(each.Module, pair.Left); });
        wishes.ModuleTypes.push_back({pair.Left, pair.Right});
    }
    const TableWishes& told = options.Told;
    wishes.Station = told.Station.empty() ? wishes.Station : told.Station;
    wishes.Module = told.Module.empty() ? wishes.Module : told.Module;
    wishes.Direction = told.Direction.empty() ? wishes.Direction : told.Direction;
    wishes.Encoding = told.Encoding.empty() ? wishes.Encoding : told.Encoding;
    wishes.RegisterBase = told.RegisterBase ? told.RegisterBase : wishes.RegisterBase;
    wishes.IgnoreUnknown = wishes.IgnoreUnknown || told.IgnoreUnknown;
    return wishes;
}

void TellComplaints(const std::string& csv, const std::vector<Complaint>& complaints) {
    for (const Complaint& complaint : complaints) {
        std::cerr << csv << ": " << TextOf(complaint) << '\n';
    }
    Tell(Counted(complaints.size(), "fault") + "; nothing was imported. Mend the table and import it again.");
}

// Of tags that a binding would no longer find as it has them.
void WarnOfLostBindings(const ImportOptions& options, const Project& project, const ImportPlan& plan) {
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
    WarnOf(lost, options.Preview ? Breaks::Would : Breaks::Do);
}

std::string Conclusion(const ImportOptions& options, const Project& project, const ImportPlan& plan) {
    const std::string file = PathText(project.File());
    if (!ChangesAnything(plan)) {
        return file + " holds all of the table already; nothing was changed.";
    }
    return options.Preview ? "This was a preview; nothing was changed. Without --preview it is done."
                           : "Imported into " + file + ": " + TotalsOf(plan) + ".";
}

// Each module once, in whatever stations it stands.
void TellTakenAsVirtual(const ImportOptions& options, const ImportPlan& plan) {
    constexpr std::size_t Most = 12;
    std::set<std::string> modules;
    for (const StationPlan& station : plan.Stations) {
        modules.insert(station.TakenAsVirtual.begin(), station.TakenAsVirtual.end());
    }
    std::string names;
    std::size_t named = 0;
    for (const std::string& module : modules) {
        names += named++ < Most ? (names.empty() ? "\"" : ", \"") + module + '"' : "";
    }
    if (modules.size() > Most) {
        names += " and " + std::to_string(modules.size() - Most) + " more";
    }
    if (!modules.empty()) {
        Tell(options.Csv +
             ": taken as \"Virtual Module\", since there are floats or longs in them and nobody says " +
             "their type: " + names + "; --module-type \"MODULE=TYPE\" says otherwise.");
    }
}

// How the table was read: of interest before it is taken, and where it failed.
void TellReading(const ImportOptions& options, const ImportPlan& plan) {
    if (!plan.Note.empty()) {
        Tell(options.Csv + ": " + plan.Note + ".");
    }
    if (options.Preview) {
        Tell(options.Csv + ": read as " + plan.Reading + ".");
    }
    for (const std::string& note : plan.Notes) {
        Tell(options.Csv + ": " + note + ".");
    }
    TellTakenAsVirtual(options, plan);
}

void Import(const ImportOptions& options, int& status) {
    Project project = ProjectFor(options.Project, options.Preview ? Access::Read : Access::Write);
    ImportRequest request{PathOf(options.Csv), options.Replace ? ImportMode::Replace : ImportMode::Merge,
                          WishesOf(options), ProgressLine()};
    const ImportPlan plan = (options.Preview ? PlanImport : ImportTags)(project, request);
    TellReading(options, plan);
    if (!options.SaveMapping.empty()) {
        SaveMapping(options.SaveMapping, request.Wishes); // also of a table with faults, to go on with
        Tell("the mapping is kept; --mapping \"" + options.SaveMapping + "\" uses it again.");
    }
    if (!plan.Complaints.empty()) {
        TellComplaints(options.Csv, plan.Complaints);
        status = Failed;
        return;
    }
    PrintPlan(std::cout, plan, options.Preview ? Detail::Everything : Detail::Counts);
    std::cout << Conclusion(options, project, plan) << '\n';
    WarnOfLostBindings(options, project, plan);
}

void AddForeignOptions(CLI::App& command, ImportOptions& options) {
    const auto checked = CLI::IsMember({"in", "out"}, CLI::ignore_case);
    TableWishes& told = options.Told;
    command
        .add_option("--map", options.Maps,
                    "Read the column THEIRS as OURS, or leave it out for \"-\"; repeated, quoted as in CSV")
        ->type_name("THEIRS=OURS")
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
        ->allow_extra_args(false);
    command.add_option("--station", told.Station, "The station of rows that name none");
    command.add_option("--module", told.Module, "The module of rows that name none");
    command.add_flag("--ignore-unknown", told.IgnoreUnknown,
                     "Leave out columns that are not known, and list them");
    command.add_option("--direction", told.Direction, "in or out, of classes that do not say it")
        ->transform(checked);
    command.add_option("--module-type", options.ModuleTypes, "The type of a module; repeated")
        ->type_name("MODULE=TYPE")
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
        ->allow_extra_args(false);
    command.add_option("--register-base", told.RegisterBase, "The address of register 1, such as 40001")
        ->check(CLI::Range(0, std::numeric_limits<std::int32_t>::max()));
    command.add_option("--encoding", told.Encoding, "What the text is written in, if that is not found out");
    command.add_option("--mapping", options.Mapping, "What was kept under this name by --save-mapping");
    command.add_option("--save-mapping", options.SaveMapping,
                       "Keep under this name what is said of the table");
}

void AddMappings(CLI::App& app) {
    CLI::App* command =
        app.add_subcommand("mappings", "List the mappings kept by import-tags, and what they say");
    command->footer("Example:\n  io-workshop mappings");
    command->callback([] {
        for (const std::string& name : SavedMappings()) {
            std::cout << name << '\n';
            std::istringstream lines(LinesOf(LoadMapping(name)));
            for (std::string line; std::getline(lines, line);) {
                std::cout << "  --" << line << '\n';
            }
        }
    });
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
    AddForeignOptions(*command, *options);
    AddProjectOption(*command, options->Project);
    command->footer(Footer);
    command->callback([options, &status] { Import(*options, status); });
    AddMappings(app);
}

} // namespace gfc::workshop
