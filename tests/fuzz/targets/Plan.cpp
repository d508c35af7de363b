#include "fuzz/Input.h"
#include "fuzz/Target.h"
#include "plan/Apply.h"
#include "plan/PlanWorld.h"
#include "plan/Template.h"
#include "services/Text.h"

#include <algorithm>
#include <array>

// Any bytes as a table of stations to be configured: refused in words, by row and column, or taken, and then
// the files say what the table says.
namespace gfc::fuzz {

namespace {

using plan::Checked;
using plan::Column;
using plan::ColumnKind;
using plan::Faults;
using plan::Sheet;
using services::EqualNoCase;

using Table = std::vector<std::vector<std::string>>;

constexpr std::size_t LongestCell = 40;
constexpr std::array<std::string_view, 20> Words = {
    "",   "0",      "1.5", "Yes", "No",    "AGA3",      "AGA7",      "AGA8",     "MEASURED", "FIXED",
    "US", "Metric", "2 5", "1",   "North", "suggested", "automatic", "\xC3\xB1", "a\r\nb",   "' x '"};

// Two stations that are configured and two that are built like them and are not.
struct Plant : test::PlanWorld {
    Plant() {
        Configure("North", "wizard/aga3_aga8_fixed.ini");
        // Of the golden compositions the sums are not 1.
        for (const char* methane : {"GC_C1=0.92\r", "GC_C1=0.95\r"}) {
            std::string& bytes = BytesOf("North");
            bytes.replace(bytes.find(methane), std::string(methane).size(), "GC_C1=0.965222\r");
        }
        Configure("West", "wizard/aga7_densimeter.ini");
        // Two runs of turbines that take any tags need more than those that name their own.
        using test::operator+=;
        for (const auto& [type, kind] : {std::pair{"FX", "Virtual FI"},
                                         {"LX", "Virtual LI"},
                                         {"AX", "Physical AI"},
                                         {"X", "Physical DI"}})
            Library.TagsOf["West"] += test::TagsInModule(std::string("MORE-") + type, kind, type,
                                                         std::string("M") + type, 20, 5001);
        BuildAlike("South", "North", [](const std::string& name) { return name; });
        BuildAlike("East", "West", [](const std::string& name) { return name; });
    }

    // What the configured ones are, said of the others.
    Table TableOf(const std::vector<std::string>& stations, std::string_view tags) {
        std::vector<plan::TemplateStation> from;
        for (const std::string& station : stations)
            from.push_back({station, FileOf(station), &Library.TagsOf[station]});
        Table table = plan::TemplateOf(config::FileIni(Files), from, tags);
        for (std::size_t row = 1; row < table.size(); ++row)
            table[row][0] = table[row][0] == "North" ? "South" : "East";
        return table;
    }
};

Plant& ThePlant() {
    static Plant plant;
    return plant;
}

const std::vector<Table>& SoundTables() {
    static const std::vector<Table> tables = {
        ThePlant().TableOf({"North"}, {}), ThePlant().TableOf({"North"}, plan::tags::Automatic),
        ThePlant().TableOf({"West"}, {}), ThePlant().TableOf({"North", "West"}, plan::tags::Automatic)};
    return tables;
}

std::string AnyCell(Input& input) {
    const std::size_t which = input.Below(2 * Words.size());
    return which < Words.size() ? std::string(Words.at(which)) : std::string(input.Text(LongestCell));
}

void AddColumn(Table& table, const std::string& title, const std::string& text) {
    table.front().push_back(title);
    for (std::size_t row = 1; row < table.size(); ++row)
        table[row].push_back(text);
}

// A sound table with cells of it replaced, rows repeated, and columns put in and taken out.
Table Patched(Input& input) {
    Table table = SoundTables().at(input.Below(SoundTables().size()));
    while (!input.IsEmpty()) {
        const std::size_t row = input.Below(table.size());
        const std::size_t column = input.Below(table.front().size());
        const std::size_t act = input.Below(8);
        if (act == 0) {
            table.push_back(table[row]);
        } else if (act == 1) {
            AddColumn(table, plan::Columns()[input.Byte() % plan::Columns().size()].Title, AnyCell(input));
        } else if (act == 2 && table.front().size() > 1) {
            for (auto& cells : table)
                cells.erase(cells.begin() + static_cast<std::ptrdiff_t>(column));
        } else {
            table[row][column] = AnyCell(input);
        }
    }
    return table;
}

Table TableOf(const Sheet& sheet) {
    Table table = {sheet.Titles};
    for (const Sheet::Row& row : sheet.Rows)
        table.push_back(row.Cells);
    return table;
}

// A table is written and read the same, and each of its rows has a cell for each title.
void CheckSheet(const Sheet& sheet) {
    for (const Sheet::Row& row : sheet.Rows)
        Require(row.Cells.size() == sheet.Titles.size(), "a row has a cell for each title");
    Require(std::ranges::is_sorted(sheet.Rows, {}, &Sheet::Row::Number), "rows stand in their order");
    Faults faults;
    const Sheet again = ReadSheet(plan::WriteSheet(TableOf(sheet)), faults);
    Require(faults.empty() && TableOf(again) == TableOf(sheet), "a table is written and read the same");
}

void CheckFaults(const Faults& faults, const Sheet& sheet) {
    Require(!faults.empty(), "what is not taken is a fault");
    Require(std::ranges::is_sorted(faults, {}, &plan::Fault::Row), "faults stand in the order of the rows");
    for (const plan::Fault& fault : faults) {
        Require(fault.Text.ends_with('.') || fault.Text.ends_with(')'), "a fault is told in a sentence");
        const bool isInTable = fault.Row == 0 || std::ranges::find(sheet.Rows, fault.Row,
                                                                   &Sheet::Row::Number) != sheet.Rows.end();
        Require(isInTable, "a fault stands at a row of the table");
        Require(fault.Column.empty() || plan::ColumnOf(fault.Column) != nullptr || fault.Row == 0,
                "and at a column of a plan");
    }
}

// "FT-101" of "FT-101 (FX 12)".
std::string_view NameOf(std::string_view tag) {
    return tag.ends_with(')') ? tag.substr(0, tag.rfind(" (")) : tag;
}

bool SaysTheSame(const Column& column, const std::string& said, const std::string& file) {
    switch (column.Kind) {
    case ColumnKind::Station:
    case ColumnKind::Runs:
    case ColumnKind::Tags:
        return true; // held against the file as a whole
    case ColumnKind::CommonTag:
    case ColumnKind::RunTag:
        return EqualNoCase(NameOf(said), NameOf(file));
    default:
        if (!plan::ChoicesOf(column.Key).empty())
            return plan::StoredChoice(column.Key, said) == file;
        return column.Key.ends_with("ModName") ? EqualNoCase(said, file) : said == file;
    }
}

// What the file says of itself; a row for each run.
Table SaidBy(const Checked& checked) {
    test::MemoryFiles files;
    files.Content["x"] = checked.Change.After;
    const auto& all = ThePlant().Library.TagsOf[checked.Change.Station];
    return plan::TemplateOf(config::FileIni(files), {{checked.Change.Station, "x", &all}}, {});
}

// The cell under a title; empty where there is no such column.
std::string CellOf(const Table& table, std::size_t row, const Column& column) {
    for (std::size_t i = 0; i < table.front().size(); ++i)
        if (plan::ColumnOf(table.front()[i]) == &column)
            return table[row][i];
    return {};
}

// Every cell of the row, in the place of the run that it is for.
void CheckRun(const Table& table, std::size_t row, const Table& file, char run) {
    const auto own =
        std::ranges::find_if(file, [&](const auto& cells) { return cells[1] == std::string(1, run); });
    Require(own != file.end(), "each run of the table is on");
    for (std::size_t i = 0; i < table.front().size(); ++i) {
        const Column* column = plan::ColumnOf(table.front()[i]);
        Require(column != nullptr, "each title is that of a column");
        const std::string& said = table[row][i];
        const auto at = static_cast<std::size_t>(own - file.begin());
        Require(said.empty() || SaysTheSame(*column, said, CellOf(file, at, *column)),
                "the file says what the table says");
    }
}

// How many runs the table says of the station, each held against the file.
std::size_t CheckRows(const Table& table, const std::string& station, const Table& file) {
    std::size_t runs = 0;
    for (std::size_t row = 1; row < table.size(); ++row)
        if (EqualNoCase(CellOf(table, row, *plan::ColumnOf("Station")), station))
            for (const char c : CellOf(table, row, *plan::ColumnOf("Runs")))
                if (c >= '1' && c <= '5') {
                    CheckRun(table, row, file, c);
                    ++runs;
                }
    return runs;
}

std::vector<Checked> Apply(std::string_view csv, const plan::ApplyOptions& options, Faults& faults) {
    auto& plant = ThePlant();
    return PlanTable(csv, plant.Files, plant.Library, plant.Project, options, faults,
                     [](const std::string&) { return true; });
}

// The table that is made of a file gives that file.
void CheckAgain(const Checked& checked, const plan::ApplyOptions& options) {
    Faults faults;
    const auto again = Apply(plan::WriteSheet(SaidBy(checked)), options, faults);
    Require(again.size() == 1 && again.front().Change.After == checked.Change.After,
            "a template gives the file that it was made from");
}

} // namespace

void Plan(std::string_view bytes) {
    Input input(bytes);
    const std::size_t what = input.Byte();
    const plan::ApplyOptions options{.User = {},
                                     .MayReplace = what / 2 % 2 != 0,
                                     .Strictness = what / 4 % 2 != 0 ? plan::Strictness::AsTheWindows
                                                                     : plan::Strictness::AllErrors};
    // Which table it is, and nothing else. Of the turbines one tag counts for two runs, as the windows let
    // it.
    const bool isSound = what % 8 == 5 && input.Left() < 2;
    const std::string csv = what % 2 != 0 ? plan::WriteSheet(Patched(input)) : std::string(input.Rest());
    Faults none;
    const Sheet sheet = plan::ReadSheet(csv, none);
    if (none.empty())
        CheckSheet(sheet);
    Faults faults;
    const auto taken = Apply(csv, options, faults);
    Require(!isSound || !taken.empty(), "a sound table is taken");
    if (taken.empty())
        return CheckFaults(faults, sheet);
    Require(faults.empty(), "a table with a fault is not taken");
    for (const Checked& checked : taken) {
        const Table file = SaidBy(checked);
        const std::size_t runs = CheckRows(TableOf(sheet), checked.Change.Station, file);
        Require(runs > 0 && file.size() == runs + 1, "no other run is on");
        CheckAgain(checked, options);
    }
}

} // namespace gfc::fuzz
