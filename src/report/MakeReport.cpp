#include "report/MakeReport.h"

#include "audit/Check.h"
#include "audit/Comparison.h"
#include "audit/OneFile.h"
#include "audit/StationPages.h"
#include "record/Sha256.h"
#include "services/CodePage.h"
#include "services/UtcText.h"

namespace gfc::report {

namespace {

SummaryTable FindingsTable(const audit::StationReport& checked) {
    SummaryTable table{
        "Findings of the check", {"Severity", "Run", "Variable", "Value", "Finding", "Rule"}, {}, {}};
    for (const audit::Finding& finding : checked.Findings)
        table.Rows.push_back({std::string(audit::WordOf(finding.Severity)),
                              finding.Run == 0 ? std::string("-") : std::to_string(finding.Run),
                              finding.Variable, finding.Value, finding.Text,
                              std::string(finding.Row().Name)});
    if (table.Rows.empty())
        table.Line = "Nothing was found.";
    return table;
}

// "Orifice Plate Internal Dia. (OrificeDia)"
std::string NameOf(const std::string& key) {
    const std::string caption = audit::CaptionOf(key);
    return caption == key ? key : caption + " (" + key + ")";
}

// What the record says of one station.
class Past {
public:
    Past(const Sources& sources, const std::string& station)
        : recorder_(sources.Recorder),
          record_(config::RecordPath(sources.Project.Paths, sources.Project.ProjectName)),
          entries_(recorder_.Entries(record_, station)) {}

    // The last entry, if it left this file.
    [[nodiscard]] std::int64_t EntryOf(const std::string& fileHash) const {
        return !entries_.empty() && entries_.back().FileHash == fileHash ? entries_.back().Number : 0;
    }

    [[nodiscard]] SummaryTable ChangesSince(std::int64_t since) const {
        SummaryTable table{"Changes since entry " + std::to_string(since),
                           {"Entry", "Time (UTC)", "User ID", "Command", "Key", "Old", "New"},
                           {},
                           {}};
        for (const config::RecordEntry& entry : entries_)
            if (entry.Number > since)
                AddChanges(entry, table);
        if (table.Rows.empty())
            table.Line = "Nothing was changed.";
        return table;
    }

private:
    void AddChanges(const config::RecordEntry& entry, SummaryTable& table) const {
        const std::vector<std::string> head = {std::to_string(entry.Number), entry.Time,
                                               entry.User.empty() ? entry.MachineUser : entry.User,
                                               entry.Command};
        const auto changes = recorder_.Changes(record_, entry.Number);
        if (changes.empty())
            table.Rows.push_back(head);
        for (const config::KeyChange& change : changes) {
            auto row = head;
            row.push_back("[" + change.Section + "] " + NameOf(change.Key));
            row.push_back(change.Old.value_or("(none)"));
            row.push_back(change.New.value_or("(none)"));
            table.Rows.push_back(std::move(row));
        }
    }

    config::Recorder& recorder_;
    std::string record_;
    std::vector<config::RecordEntry> entries_;
};

std::string NameOfFile(const std::string& path) {
    return path.substr(path.find_last_of("/\\") + 1);
}

void AddConfiguration(const Sources& sources, const Request& request, const std::string& bytes,
                      StationPages& pages) {
    const project::Project& project = sources.Project;
    const std::string path = project.ConfigFileOf(pages.Name);
    project::TagList tags;
    if (sources.Library != nullptr)
        tags = sources.Library->ReadTags(pages.Name, project.ProjectFile, {});
    const Past past(sources, pages.Name);
    pages.FileHash = record::Sha256(bytes);
    pages.File = services::FromCodePage(bytes);
    pages.Entry = past.EntryOf(pages.FileHash);
    pages.Tables = audit::PagesOf({path, project.ProjectName, pages.Name, bytes}, tags, sources.Machine);
    // The very bytes of the hash, whatever is written meanwhile.
    audit::OneFile file(path, bytes);
    pages.Tables.push_back(
        FindingsTable(audit::CheckFile(file, {path, project.ProjectFile, project.ProjectName, pages.Name},
                                       sources.Library == nullptr ? nullptr : &tags)));
    if (request.Since)
        pages.Tables.push_back(past.ChangesSince(*request.Since));
}

StationPages PagesOf(const Sources& sources, const Request& request, const std::string& station) {
    const std::string path = sources.Project.ConfigFileOf(station);
    StationPages pages{station, NameOfFile(path), {}, 0, {}, {}};
    const auto bytes = sources.Machine.Files.Read(path);
    const std::string reason = sources.Machine.Files.LastFailure(); // before the next call
    if (bytes)
        AddConfiguration(sources, request, *bytes, pages);
    else if (sources.Machine.Files.Exists(path))
        pages.Unread = "The configuration of this station cannot be read: " + reason + ".";
    return pages;
}

} // namespace

ReportMaking::ReportMaking(Sources sources, Request request)
    : sources_(sources), request_(std::move(request)) {
    const project::Project& project = sources.Project;
    const auto entries = sources.Recorder.Entries(config::RecordPath(project.Paths, project.ProjectName), {});
    report_.Time = services::UtcText(sources.Machine.Clock, sources.Machine.TimeZone);
    report_.Project = project.ProjectName;
    report_.ProjectFile = project.ProjectFile;
    report_.User = request_.User;
    report_.MachineUser = sources.Machine.Paths.UserName();
    report_.Version = request_.Version;
    if (!entries.empty()) {
        report_.Entries = entries.back().Number;
        report_.HistoryHash = entries.back().Hash;
    }
    if (request_.Since)
        report_.Since = "since entry " + std::to_string(*request_.Since);
}

bool ReportMaking::Advance() {
    const std::size_t next = report_.Stations.size();
    if (next < request_.Stations.size())
        report_.Stations.push_back(PagesOf(sources_, request_, request_.Stations[next]));
    return report_.Stations.size() < request_.Stations.size();
}

Report MakeReport(const Sources& sources, const Request& request) {
    ReportMaking making(sources, request);
    while (making.Advance()) {
    }
    return making.Made();
}

} // namespace gfc::report
