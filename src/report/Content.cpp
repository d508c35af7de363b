#include "report/Content.h"

#include <algorithm>

namespace gfc::report {

namespace {

std::string OrDash(const std::string& text) {
    return text.empty() ? "-" : text;
}

// What stands in the place of a hash.
std::string HashOrNone(const StationPages& station) {
    if (!station.FileHash.empty())
        return station.FileHash;
    return station.Unread.empty() ? "not configured" : "cannot be read";
}

Part StationsTable(const Report& report) {
    Part part{Part::Kind::Table, {}, {{}, {"Station", "File", "SHA-256 of the file", "Entry"}, {}, {}}};
    for (const StationPages& station : report.Stations)
        part.Table.Rows.push_back({station.Name, station.FileName, HashOrNone(station),
                                   station.Entry == 0 ? "-" : std::to_string(station.Entry)});
    return part;
}

} // namespace

Parts CoverOf(const Report& report) {
    Part facts{Part::Kind::Table, {}, {}};
    facts.Table.Rows = {{"Project", OrDash(report.Project)},
                        {"Project file", OrDash(report.ProjectFile)},
                        {"Time (UTC)", OrDash(report.Time)},
                        {"User ID", OrDash(report.User)},
                        {"Logged on as", OrDash(report.MachineUser)},
                        {"Program", OrDash(report.Version)},
                        {"Entries of the history", std::to_string(report.Entries)},
                        {"Hash of its last entry", OrDash(report.HistoryHash)},
                        {"Changes listed", report.Since.empty() ? "none" : report.Since},
                        {"SHA-256 of the content", report::ContentHash(report)}};
    return {{Part::Kind::Title, "Configuration report"},
            std::move(facts),
            {Part::Kind::Heading, "Stations"},
            StationsTable(report)};
}

Parts PartsOf(const StationPages& station) {
    Parts parts = {{Part::Kind::Heading, station.Name}};
    if (station.FileHash.empty()) {
        parts.push_back({Part::Kind::Line,
                         station.Unread.empty() ? "This station has no configuration." : station.Unread});
        return parts;
    }
    parts.push_back({Part::Kind::Line, station.FileName});
    parts.push_back({Part::Kind::Line, station.FileHash});
    for (const SummaryTable& table : station.Tables) {
        parts.push_back({Part::Kind::Subheading, table.Title});
        table.Line.empty() ? parts.push_back({Part::Kind::Table, {}, table})
                           : parts.push_back({Part::Kind::Line, table.Line});
    }
    return parts;
}

Parts SignaturesOf() {
    Part sign{Part::Kind::Signatures, {}, {{}, {"Name", "Date", "Signature"}, {}, {}}};
    for (const char* who : {"Configured by", "Checked by", "Witnessed by"})
        sign.Table.Rows.push_back({who, "", ""});
    return {{Part::Kind::Heading, "Signatures"}, std::move(sign)};
}

std::string FooterOf(const StationPages& station) {
    return station.Name + "  " + HashOrNone(station);
}

std::string FooterOf(const Report& report) {
    return "Content " + report::ContentHash(report);
}

bool IsHash(std::string_view text) {
    constexpr std::size_t digits = 64;
    return text.size() == digits &&
           std::ranges::all_of(text, [](char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f'); });
}

} // namespace gfc::report
