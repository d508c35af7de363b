#pragma once

#include "audit/StationPages.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What a report says of the stations of a project, before it has a form. A page on paper, a page for a
// browser and the form for programs are made from this and from nothing else, so that the same state gives
// the same bytes, but for the time. All texts are UTF-8.
namespace gfc::report {

using audit::SummaryTable;

struct StationPages {
    std::string Name;
    std::string FileName;   // without its folder
    std::string FileHash;   // SHA-256, 64 hexadecimal digits; empty for a station without a configuration
    std::int64_t Entry = 0; // the entry of the history that left this file; 0 for none
    std::string File;       // its bytes, each as the character of that number
    std::vector<SummaryTable> Tables;
    std::string Unread = {}; // why the file, which is there, cannot be read; FileHash is empty then

    bool operator==(const StationPages&) const = default;
};

struct Report {
    std::string Time; // UTC, "2023-03-15T12:00:00Z"; not part of the content
    std::string Project;
    std::string ProjectFile;
    std::string User;         // who asked for it
    std::string MachineUser;  // who was logged on
    std::string Version;      // of the program
    std::int64_t Entries = 0; // of the history
    std::string HistoryHash;  // of its last entry; empty for none
    std::string Since;        // from where on changes are listed, in words; empty for none
    std::vector<StationPages> Stations;

    bool operator==(const Report&) const = default;
};

// The form for programs: JSON in a fixed order, ASCII alone.
[[nodiscard]] std::string ToJson(const Report& report);
// Nothing for what is no report.
[[nodiscard]] std::optional<Report> FromJson(std::string_view json);

// SHA-256 of all but the time.
[[nodiscard]] std::string ContentHash(const Report& report);

// One file that a browser shows and prints well, black on white, with the form for programs in it.
[[nodiscard]] std::string ToHtml(const Report& report);

// What a file of any of the three forms holds. Nothing for what is no report.
[[nodiscard]] std::optional<Report> ReadReport(std::string_view bytes);

} // namespace gfc::report
