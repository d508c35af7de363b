#include "audit/Comparison.h"
#include "commands/Json.h"
#include "commands/RecordAccess.h"
#include "project/Project.h"
#include "record/Sha256.h"
#include "report/Report.h"
#include "services/CodePage.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <map>
#include <memory>

namespace gfc::commands {

namespace {

struct Options {
    std::string Report, Project;
    bool Json = false;
};

// One thing that was held against another, and how it stands.
struct Finding {
    std::string About; // a station's name; empty for the history or the report as a whole
    bool Holds = true;
    std::string Text;
    std::vector<audit::ComparedRow> Rows; // what differs
};

std::string StateOf(const config::FileState& file) {
    return file ? record::Sha256(*file) : std::string();
}

void Put(const Finding& finding) {
    std::cout << (finding.Holds ? "ok    " : "WRONG ") << (finding.About.empty() ? "" : finding.About + ": ")
              << finding.Text << '\n';
    for (const audit::ComparedRow& row : finding.Rows)
        std::cout << "        [" << row.Section << "] " << row.Caption << " (" << row.Key
                  << "): " << audit::ShownValue(row.Left, row.LeftUnit) << " -> "
                  << audit::ShownValue(row.Right, row.RightUnit) << '\n';
}

Json JsonOf(const Finding& finding) {
    Json rows = Json::array();
    for (const audit::ComparedRow& row : finding.Rows)
        rows.push_back({{"section", row.Section},
                        {"key", row.Key},
                        {"caption", row.Caption},
                        {"left", OrNull(row.Left)},
                        {"right", OrNull(row.Right)}});
    return {{"station", finding.About}, {"holds", finding.Holds}, {"text", finding.Text}, {"differs", rows}};
}

std::vector<audit::ComparedRow> Differences(const std::string& left, const std::string& right) {
    auto rows = audit::Compare({left, 0}, {right, 0});
    std::erase_if(rows, [](const audit::ComparedRow& row) { return row.IsEqual(); });
    return rows;
}

Finding OfHistory(config::Recorder& recorder, const std::string& record) {
    const config::RecordCheck check = recorder.Verify(record);
    const std::string entries = std::to_string(check.Entries);
    if (!check.Damage)
        return {{}, true, "the history holds, with " + entries + " entries", {}};
    if (check.Damage->Entry == 0)
        return {
            {}, false, "the history: " + check.Damage->Reason + " All its " + entries + " entries hold.", {}};
    return {{},
            false,
            "the history: entry " + std::to_string(check.Damage->Entry) + " does not hold. " +
                check.Damage->Reason,
            {}};
}

// Each station's file against its last entry.
std::vector<Finding> CheckHistory(const ProjectFiles& project, platform::Machine& machine) {
    auto recorder = MakeRecorder(machine);
    const std::string record = project.Record();
    std::vector<Finding> findings = {OfHistory(recorder, record)};
    std::map<std::string, config::RecordEntry> last;
    for (config::RecordEntry& entry : recorder.Entries(record, {}))
        last[entry.Station] = std::move(entry);
    for (const auto& [station, entry] : last) {
        const auto file = machine.Files.Read(project.FileOf(station));
        const std::string number = std::to_string(entry.Number);
        Finding finding{station, StateOf(file) == entry.FileHash, "is as entry " + number + " left it", {}};
        if (!finding.Holds) {
            finding.Text = "was changed after entry " + number + " and by no command of the program";
            finding.Rows = Differences(recorder.Generation(record, entry.Number).value_or(std::string()),
                                       file.value_or(std::string()));
        }
        findings.push_back(std::move(finding));
    }
    return findings;
}

// What a page shows is made from what it carries: made again, it must be the same page.
Finding OfReport(const report::Report& report, const std::string& bytes) {
    if (bytes.starts_with("%PDF"))
        return {{},
                true,
                "the report carries the content " + report::ContentHash(report) +
                    ", which its pages must bear",
                {}};
    const bool same = bytes == report::ToHtml(report) || bytes == report::ToJson(report);
    return {{},
            same,
            same ? "the report is as it was made, with the content " + report::ContentHash(report)
                 : "the text of the report is not the one that was made from its content",
            {}};
}

Finding OfHistoryThen(const report::Report& report, const ProjectFiles& project, platform::Machine& machine) {
    if (report.Entries == 0)
        return {{}, true, "the report was made without a history", {}};
    auto recorder = MakeRecorder(machine);
    for (const config::RecordEntry& entry : recorder.Entries(project.Record(), {}))
        if (entry.Number == report.Entries)
            return {{},
                    entry.Hash == report.HistoryHash,
                    entry.Hash == report.HistoryHash
                        ? "the history is the one of the report"
                        : "the history is another one than that of the report from entry " +
                              std::to_string(report.Entries) + " or before it",
                    {}};
    return {{},
            false,
            "the history has no entry " + std::to_string(report.Entries) +
                " any more, which it had when the report was made",
            {}};
}

Finding OfStation(const report::StationPages& station, const ProjectFiles& project,
                  platform::Machine& machine) {
    const std::string path = project.FileOf(station.Name);
    const auto file = machine.Files.Read(path);
    if (!file && machine.Files.Exists(path))
        return {station.Name, false, "has a file that cannot be read", {}};
    const auto reported = services::ToCodePage(station.File);
    if (!reported || (!station.FileHash.empty() && record::Sha256(*reported) != station.FileHash))
        return {station.Name, false, "the report does not carry the file whose hash it shows", {}};
    if (StateOf(file) == station.FileHash)
        return {
            station.Name, true, file ? "is the file of the report" : "has no configuration, as reported", {}};
    return {station.Name, false, file ? "is not the file of the report" : "has no configuration any more",
            Differences(*reported, file.value_or(std::string()))};
}

std::vector<Finding> CheckReport(const Options& options, const std::string& bytes,
                                 platform::Machine& machine) {
    const auto report = report::ReadReport(bytes);
    if (!report)
        throw Failure(exitcode::WrongUse, "this is no report of this program: " + options.Report);
    const ProjectFiles project = FilesOfProject(machine, options.Project);
    std::vector<Finding> findings = {OfReport(*report, bytes), OfHistoryThen(*report, project, machine)};
    for (const report::StationPages& station : report->Stations)
        findings.push_back(OfStation(station, project, machine));
    return findings;
}

std::vector<Finding> Check(const Options& options, platform::Machine& machine) {
    if (options.Report.empty())
        return CheckHistory(FilesOfProject(machine, options.Project), machine);
    const auto bytes = machine.Files.Read(options.Report);
    if (!bytes)
        throw Failure(exitcode::WrongUse, "the report cannot be read: " + options.Report);
    return CheckReport(options, *bytes, machine);
}

void Run(const Options& options, Context context) {
    Json list = Json::array();
    for (const Finding& finding : Check(options, context.Machine)) {
        if (!finding.Holds)
            context.Status = exitcode::Found;
        options.Json ? list.push_back(JsonOf(finding)) : Put(finding);
    }
    if (options.Json)
        WriteJson(
            std::cout,
            {{"version", 1}, {"holds", context.Status == exitcode::Clean}, {"findings", std::move(list)}});
}

} // namespace

void AddVerifyCommand(CLI::App& app, Context context) {
    auto options = std::make_shared<Options>();
    CLI::App* command = app.add_subcommand("verify", "Hold the history, or a report, against the files");
    command->add_option("REPORT", options->Report, "A report; without one the history is looked at");
    command->add_flag("--json", options->Json, "Give out JSON");
    command->add_option("--project", options->Project, "The project's file; without it the open project");
    command->footer("Exit codes: 0 all holds, 1 something was changed.");
    command->callback([options, context] { Run(*options, context); });
}

} // namespace gfc::commands
