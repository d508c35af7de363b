#include "workshop/import/TagTable.h"

#include "workshop/text/CodePage.h"
#include "workshop/text/Letters.h"
#include "workshop/text/Paths.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <utility>

namespace gfc::workshop {

namespace {

enum class Kind { Text, FileName, Number, Class };
enum class Need { Always, WithTag, Never }; // where the field must not be empty

struct Column {
    std::string_view Title;
    std::string TableRow::*Field;
    Kind Holds;
    Need Needed;
    std::size_t Width; // characters, as the library's records have room for
};

// clang-format off
constexpr std::array<Column, 10> Columns = {{
    {"Station",       &TableRow::Station,      Kind::FileName, Need::Always,  80},
    {"Station Type",  &TableRow::StationType,  Kind::Text,     Need::Never,   80},
    {"IP Address",    &TableRow::Address,      Kind::Text,     Need::Never,   20},
    {"Serial Number", &TableRow::SerialNumber, Kind::Number,   Need::Never,   10},
    {"Module",        &TableRow::Module,       Kind::Text,     Need::WithTag, 40},
    {"Module Type",   &TableRow::ModuleType,   Kind::Text,     Need::Never,   80},
    {"Tag",           &TableRow::Tag,          Kind::Text,     Need::WithTag, 40},
    {"Class",         &TableRow::Class,        Kind::Class,    Need::WithTag, 10},
    {"Register",      &TableRow::Register,     Kind::Number,   Need::WithTag, 10},
    {"Description",   &TableRow::Description,  Kind::Text,     Need::Never,   80},
}};
// clang-format on

std::optional<std::int32_t> ParseNumber(const std::string& text) {
    std::int32_t number = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    return result.ec == std::errc{} && result.ptr == end && number >= 0 ? std::optional(number)
                                                                        : std::nullopt;
}

bool IsClass(const std::string& text) {
    return std::find(RegisterClasses.begin(), RegisterClasses.end(), Upper(text)) != RegisterClasses.end();
}

// Blanks at the ends and line breaks would be lost on the way through a configuration file.
bool IsPlain(const std::string& text) {
    const bool control =
        std::any_of(text.begin(), text.end(), [](unsigned char c) { return c < ' ' || c == 0x7F; });
    return !control && text.front() != ' ' && text.back() != ' ';
}

// Empty when the text may stand under its column.
std::string FaultOf(const Column& column, const std::string& text) {
    if (!FitsCodePage(text)) {
        return "\"" + text + "\" holds characters outside Windows-1252 or is not UTF-8";
    }
    if (CharacterCount(text) > column.Width) {
        return "\"" + text + "\" is longer than " + std::to_string(column.Width) + " characters";
    }
    if (!IsPlain(text)) {
        return "\"" + text + "\" holds a control character or has a blank at its end";
    }
    if (column.Holds == Kind::FileName && !IsFileName(text)) {
        return "\"" + text + "\" cannot be part of a file name";
    }
    if (column.Holds == Kind::Number && !ParseNumber(text)) {
        return "\"" + text + "\" is not a whole number from 0 to 2147483647";
    }
    if (column.Holds == Kind::Class && !IsClass(text)) {
        return "\"" + text + "\" is no register class; use X, Y, AX, AY, FX, FY, LX or LY";
    }
    return {};
}

bool MustNotBeEmpty(const Column& column, const TableRow& row) {
    return column.Needed == Need::Always || (column.Needed == Need::WithTag && HoldsTag(row));
}

bool CheckRow(const TableRow& row, std::vector<Complaint>& complaints) {
    const std::size_t before = complaints.size();
    for (const Column& column : Columns) {
        const std::string& text = row.*column.Field;
        std::string fault;
        if (!text.empty()) {
            fault = FaultOf(column, text);
        } else if (MustNotBeEmpty(column, row)) {
            fault = "is empty";
        }
        if (!fault.empty()) {
            complaints.push_back({row.Row, std::string(column.Title), fault});
        }
    }
    return complaints.size() == before;
}

using Heading = std::vector<const Column*>; // one per column of the file

const Column* ColumnNamed(std::string_view title) {
    const auto found = std::find_if(Columns.begin(), Columns.end(),
                                    [&](const Column& column) { return SameName(column.Title, title); });
    return found == Columns.end() ? nullptr : &*found;
}

Heading ReadHeading(const CsvRow& row, std::vector<Complaint>& complaints) {
    Heading heading;
    for (const std::string& title : row.Fields) {
        const Column* column = ColumnNamed(title);
        if (column == nullptr) {
            complaints.push_back({row.Row, title, "no such column is known"});
        } else if (std::find(heading.begin(), heading.end(), column) != heading.end()) {
            complaints.push_back({row.Row, title, "stands twice in the first row"});
        }
        heading.push_back(column);
    }
    for (const Column& column : Columns) {
        if (column.Needed != Need::Never &&
            std::find(heading.begin(), heading.end(), &column) == heading.end()) {
            complaints.push_back({row.Row, std::string(column.Title), "is missing in the first row"});
        }
    }
    return heading;
}

TableRow ReadRow(const CsvRow& fields, const Heading& heading) {
    TableRow row;
    row.Row = fields.Row;
    for (std::size_t at = 0; at < std::min(heading.size(), fields.Fields.size()); ++at) {
        row.*heading[at]->Field = fields.Fields[at];
    }
    return row;
}

} // namespace

std::string TextOf(const Complaint& complaint) {
    std::string place = complaint.Row == 0 ? "" : "row " + std::to_string(complaint.Row);
    if (!complaint.Column.empty()) {
        place += (place.empty() ? "column " : ", column ") + complaint.Column;
    }
    return place.empty() ? complaint.Text : place + ": " + complaint.Text;
}

std::vector<std::string> ColumnTitles() {
    std::vector<std::string> titles;
    for (const Column& column : Columns) {
        titles.emplace_back(column.Title);
    }
    return titles;
}

std::vector<std::string> FieldsOf(const TableRow& row) {
    std::vector<std::string> fields;
    for (const Column& column : Columns) {
        fields.push_back(row.*column.Field);
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

TagTable ReadTagTable(const std::vector<CsvRow>& rows) {
    TagTable table;
    if (rows.size() < 2) {
        table.Complaints.push_back({0, "", "the table has no rows below its heading"});
        return table;
    }
    const Heading heading = ReadHeading(rows.front(), table.Complaints);
    if (!table.Complaints.empty()) {
        return table; // without the right columns every row would be at fault
    }
    for (auto row = rows.begin() + 1; row != rows.end(); ++row) {
        if (row->Fields.size() > heading.size()) {
            table.Complaints.push_back({row->Row, "", "has more fields than the first row has columns"});
            continue;
        }
        if (TableRow read = ReadRow(*row, heading); CheckRow(read, table.Complaints)) {
            table.Rows.push_back(std::move(read));
        }
    }
    return table;
}

} // namespace gfc::workshop
