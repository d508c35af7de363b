#include "workshop/import/TagTable.h"

#include "workshop/import/TableValues.h"
#include "workshop/text/Letters.h"

#include <algorithm>
#include <set>

namespace gfc::workshop {

namespace {

bool MustNotBeEmpty(const Column& column, const TableRow& row) {
    return column.Needed == Need::Always || (column.Needed == Need::WithTag && HoldsTag(row));
}

std::string FaultIn(const Column& column, const TableRow& row) {
    const std::string& text = row.*column.Field;
    if (!text.empty()) {
        return FaultOf(column, text);
    }
    return MustNotBeEmpty(column, row) ? "is empty" : "";
}

void TakeFields(const CsvRow& fields, const Heading& heading, TableRow& row) {
    row.Row = fields.Row;
    for (std::size_t at = 0; at < std::min(heading.Columns.size(), fields.Fields.size()); ++at) {
        if (heading.Columns[at] != nullptr) {
            row.*heading.Columns[at]->Field = fields.Fields[at];
        }
    }
}

bool IsComment(const CsvRow& row) {
    const std::string& first = row.Fields.front();
    return first.starts_with('#') || first.starts_with("//");
}

bool IsEmpty(const CsvRow& row) {
    return std::all_of(row.Fields.begin(), row.Fields.end(),
                       [](const std::string& text) { return text.empty(); });
}

// Fields behind the last title count only where they hold something.
bool HasTooManyFields(const CsvRow& row, const Heading& heading) {
    return std::any_of(row.Fields.begin() +
                           static_cast<std::ptrdiff_t>(std::min(row.Fields.size(), heading.Columns.size())),
                       row.Fields.end(), [](const std::string& text) { return !text.empty(); });
}

std::string Listed(const std::vector<std::string>& titles) {
    std::string text;
    for (const std::string& title : titles) {
        text += (text.empty() ? "\"" : ", \"") + title + '"';
    }
    return text;
}

class TableReader {
public:
    TableReader(const TableWishes& wishes, const Progress& progress) : wishes_(wishes), progress_(progress) {}

    [[nodiscard]] TagTable Read(const std::vector<CsvRow>& rows) {
        if (rows.size() < 2) {
            table_.Complaints.push_back({0, "", "the table has no rows below its heading"});
            return std::move(table_);
        }
        heading_ = FindHeading(rows, wishes_, table_.Complaints);
        otherwise_ = ReadDirection(wishes_.Direction).value_or(Direction::Untold);
        if (table_.Complaints.empty()) { // without the right columns every row would be at fault
            NoteHeading(rows);
            TakeRows(rows);
            LookForModules();
            CountRegisters();
        }
        table_.Titles = std::move(heading_);
        return std::move(table_);
    }

private:
    void NoteHeading(const std::vector<CsvRow>& rows) {
        if (heading_.At > 0) {
            table_.Notes.push_back("the titles were found in row " + std::to_string(rows[heading_.At].Row) +
                                   "; what stands above them was passed over");
        }
        std::string read;
        for (std::size_t at = 0; at < heading_.Columns.size(); ++at) {
            const Column* column = heading_.Columns[at];
            if (column != nullptr && !SameName(column->Title, heading_.Titles[at])) {
                read += (read.empty() ? "\"" : ", \"") + heading_.Titles[at] + "\" as " +
                        std::string(column->Title);
            }
        }
        if (!read.empty()) {
            table_.Notes.push_back("columns read: " + read);
        }
        if (!heading_.Ignored.empty()) {
            table_.Notes.push_back("left out: " + Listed(heading_.Ignored));
        }
    }

    void TakeRows(const std::vector<CsvRow>& rows) {
        constexpr std::size_t Often = 4096;
        table_.Rows.reserve(rows.size());
        for (std::size_t at = heading_.At + 1; at < rows.size(); ++at) {
            if (at % Often == 0) {
                TellProgress(progress_, static_cast<double>(at) / static_cast<double>(rows.size()));
            }
            if (!IsComment(rows[at]) && (!heading_.Foreign || !IsEmpty(rows[at]))) {
                TakeRow(rows[at]);
            }
        }
    }

    void TakeRow(const CsvRow& fields) {
        if (HasTooManyFields(fields, heading_)) {
            table_.Complaints.push_back({fields.Row, "", "has more fields than the table has titles"});
            return;
        }
        TableRow& row = table_.Rows.emplace_back();
        TakeFields(fields, heading_, row);
        GiveWished(row);
        const std::vector<ValueFault> faults = PutInOurWords(row, otherwise_);
        if (Passes(row, faults)) {
            row.Class = Upper(row.Class);
        } else {
            table_.Rows.pop_back();
        }
    }

    void GiveWished(TableRow& row) {
        row.Station = row.Station.empty() ? wishes_.Station : row.Station;
        if (row.Module.empty() && HoldsTag(row)) {
            row.Module = wishes_.Module;
        }
        for (const ModuleWish& wish : wishes_.ModuleTypes) {
            if (SameName(wish.Module, row.Module)) {
                row.ModuleType = wish.Type;
                typed_.insert(&wish);
            }
        }
    }

    [[nodiscard]] bool Passes(const TableRow& row, const std::vector<ValueFault>& faults) {
        const std::size_t before = table_.Complaints.size();
        for (const Column& column : AllColumns()) {
            const auto told = std::find_if(faults.begin(), faults.end(),
                                           [&](const ValueFault& fault) { return fault.Where == &column; });
            std::string fault = told == faults.end() ? FaultIn(column, row) : told->Text;
            if (!fault.empty()) {
                table_.Complaints.push_back({row.Row, heading_.NameOf(column), std::move(fault)});
            }
        }
        return table_.Complaints.size() == before;
    }

    // A module that a person names and the table lacks is a slip of the pen.
    void LookForModules() {
        for (const ModuleWish& wish : wishes_.ModuleTypes) {
            if (!typed_.contains(&wish)) {
                table_.Complaints.push_back(
                    {0, "", "no row is of the module \"" + wish.Module + "\", which --module-type names"});
            }
        }
    }

    // Our own tables say their registers as they are; those of other tools often count from 40001 and the
    // like.
    void CountRegisters() {
        if (wishes_.RegisterBase) {
            CountFromBase(*wishes_.RegisterBase);
        } else if (const auto area = heading_.Foreign ? AreaOf(table_.Rows) : std::nullopt) {
            CountFromBase(area->First);
            table_.Notes.push_back(
                "all registers stand from " + std::to_string(area->First) + " to " +
                std::to_string(area->Last) + ", so " + std::to_string(area->First) +
                " was taken for register 1; a register base of 1 takes them as they stand");
        }
    }

    void CountFromBase(std::int64_t base) {
        for (TableRow& row : table_.Rows) {
            if (!row.Register.empty() && !CountFrom(base, row)) {
                table_.Complaints.push_back({row.Row, heading_.NameOf(*ColumnNamed("Register")),
                                             "\"" + row.Register + "\" stands before register 1 at " +
                                                 std::to_string(base) + ", which --register-base names"});
            }
        }
    }

    const TableWishes& wishes_;
    const Progress& progress_;
    TagTable table_;
    Heading heading_;
    Direction otherwise_ = Direction::Untold;
    std::set<const ModuleWish*> typed_;
};

} // namespace

std::vector<std::string> ColumnTitles() {
    std::vector<std::string> titles;
    for (const Column& column : AllColumns()) {
        if (column.Holds != Kind::Direction) {
            titles.emplace_back(column.Title);
        }
    }
    return titles;
}

std::vector<std::string> FieldsOf(const TableRow& row) {
    std::vector<std::string> fields;
    for (const Column& column : AllColumns()) {
        if (column.Holds != Kind::Direction) {
            fields.push_back(row.*column.Field);
        }
    }
    return fields;
}

std::string FaultUnder(std::string_view title, const std::string& text) {
    const Column* column = ColumnNamed(title);
    if (column == nullptr) {
        return "\"" + std::string(title) + "\" is no column";
    }
    if (text.empty()) {
        return column->Needed == Need::Never ? "" : "\"\" is empty";
    }
    return FaultOf(*column, text);
}

bool HoldsTag(const TableRow& row) {
    return !(row.Module.empty() && row.Tag.empty() && row.Class.empty() && row.Register.empty());
}

Tag TagOf(const TableRow& row) {
    return {row.Tag, Upper(row.Class), NumberOf(row.Register), row.Module, row.ModuleType, row.Description};
}

std::int32_t NumberOf(const std::string& text) {
    return ParseNumber(text).value_or(0);
}

TagTable ReadTagTable(const std::vector<CsvRow>& rows, const TableWishes& wishes, const Progress& progress) {
    return TableReader(wishes, progress).Read(rows);
}

} // namespace gfc::workshop
