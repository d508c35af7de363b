#include "workshop/export/TagExport.h"

#include "workshop/import/TagTable.h"

#include <csv.h>

namespace gfc::workshop {

namespace {

std::string Quoted(const std::string& field) {
    std::string quoted(2 * field.size() + 2, '\0'); // room for a field of quotes alone
    quoted.resize(csv_write(quoted.data(), quoted.size(), field.data(), field.size()));
    return quoted;
}

// An unquoted field would lose the blanks at its ends.
bool NeedsQuotes(const std::string& field, char separator) {
    return field.find_first_of("\"\r\n") != std::string::npos || field.find(separator) != std::string::npos ||
           (!field.empty() && (field.front() == ' ' || field.back() == ' '));
}

void AppendRow(std::string& text, const std::vector<std::string>& fields, char separator) {
    const char* before = "";
    const char between[] = {separator, '\0'};
    for (const std::string& field : fields) {
        text += before;
        text += NeedsQuotes(field, separator) ? Quoted(field) : field;
        before = between;
    }
    text += '\n';
}

TableRow RowOf(const Station& station) {
    TableRow row;
    row.Station = station.Name;
    row.StationType = station.Type;
    row.Address = station.Address;
    row.SerialNumber = std::to_string(station.SerialNumber);
    return row;
}

TableRow RowOf(const Station& station, const Tag& tag) {
    TableRow row = RowOf(station);
    row.Module = tag.Module;
    row.ModuleType = tag.ModuleType;
    row.Tag = tag.Name;
    row.Class = tag.Class;
    row.Register = std::to_string(tag.Register);
    row.Description = tag.Description;
    return row;
}

} // namespace

std::vector<StationTags> StationTagsOf(Project& project, const std::string& station) {
    std::vector<StationTags> all;
    for (const Station& known : StationsNamed(project, station)) {
        all.push_back({known, ListTags(project, known.Id)});
    }
    return all;
}

std::string TagTableText(const std::vector<StationTags>& stations, char separator) {
    std::string text;
    AppendRow(text, ColumnTitles(), separator);
    for (const auto& [station, tags] : stations) {
        if (tags.empty()) {
            AppendRow(text, FieldsOf(RowOf(station)), separator);
        }
        for (const Tag& tag : tags) {
            AppendRow(text, FieldsOf(RowOf(station, tag)), separator);
        }
    }
    return text;
}

} // namespace gfc::workshop
