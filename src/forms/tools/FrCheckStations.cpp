#include "forms/tools/FrCheckStations.h"

#include "forms/main_window/GFCPrincipal.h"
#include "platform/Folder.h"
#include "platform/Machine.h"
#include "services/Text.h"

namespace gfc::forms {

namespace {

constexpr const char* title = "Check all stations";
constexpr int helpContext = 8000;

} // namespace

FrCheckStations::FrCheckStations(Program& program)
    : ToolForm(program, "FrCheckStations", title, helpContext) {
    Check1.SetValue(true);
    Check2.SetValue(true);
    Text1.OnEdited = [this] { ShowRows(); };
    for (auto* check : {&Check1, &Check2, &Check3})
        check->OnClick = [this] { ShowRows(); };
    ListView1.OnRowOpened = [this](int row) { OpenRow(row); };
    Command1.OnClick = [this] { OpenHelp(); };
    Command2.OnClick = [this] { End("Stopped"); };
    Command3.OnClick = [this] { Copy(); };
    Command4.OnClick = [this] { Save(); };
    Command5.OnClick = [this] { Unload(); };
    Timer1.OnTimer = [this] { CheckNext(); };
    SetCancelButton(Command5);
}

void FrCheckStations::Load() {
    ListView1.AddColumns(
        {{"Station", 18}, {"Severity", 9}, {"Run", 4}, {"Variable", 30}, {"Finding", 64}, {"What to do"}});
    const auto& project = session_.Project;
    const auto names = platform::FileNamesIn(project.Paths.ProjectFolder);
    plant_ = std::make_unique<audit::ProjectPlant>(program_.Machine.Files, program_.Library, project,
                                                   names.value_or(std::vector<std::string>()));
    check_ = std::make_unique<audit::PlantCheck>(*plant_);
    ShowProgress("Checking");
    Timer1.SetEnabled(true);
}

void FrCheckStations::Unloading() {
    Timer1.SetEnabled(false);
}

// The window may be closed while the library takes its time over a station: the check ends with that one.
void FrCheckStations::CheckNext() {
    if (isAsking_)
        return; // the library lets the timer tick
    const auto alive = KeepAlive();
    if (check_->IsAtEnd())
        return End("Checked");
    isAsking_ = true;
    auto report = std::make_unique<audit::StationReport>(check_->Next());
    isAsking_ = false;
    if (IsUnloaded() || !Timer1.Enabled())
        return;
    errors_ += audit::CountOf(report->Findings, audit::Severity::Error);
    warnings_ += audit::CountOf(report->Findings, audit::Severity::Warning);
    notes_ += audit::CountOf(report->Findings, audit::Severity::Note);
    reports_.push_back(std::move(report));
    AddRowsOf(*reports_.back());
    check_->IsAtEnd() ? End("Checked") : ShowProgress("Checking");
}

// What was found marks the tree; a station that was not reached keeps its mark.
void FrCheckStations::End(const std::string& how) {
    if (!Timer1.Enabled())
        return;
    Timer1.SetEnabled(false);
    Command2.SetEnabled(false);
    ShowProgress(how);
    if (!program_.Forms.IsLoaded<GFCPrincipal>())
        return;
    std::vector<const audit::StationReport*> reports;
    for (const auto& report : reports_)
        reports.push_back(report.get());
    program_.Forms.Get<GFCPrincipal>().MarkChecked(reports);
}

void FrCheckStations::ShowProgress(const std::string& lead) {
    Label2.SetCaption(lead + ": " + std::to_string(reports_.size()) + " of " +
                      Counted(plant_->Count(), "station", "stations") + "; " +
                      Counted(errors_, "error", "errors") + ", " + Counted(warnings_, "warning", "warnings") +
                      ", " + Counted(notes_, "note", "notes"));
}

bool FrCheckStations::IsWanted(const audit::StationReport& report, const audit::Finding& finding) const {
    const ui::CheckBox* const checks[] = {&Check1, &Check2, &Check3};
    if (!checks[static_cast<std::size_t>(finding.Severity)]->Value())
        return false;
    const std::string sought = services::FoldCase(Text1.Text());
    const auto holds = [&](std::string_view text) {
        return services::FoldCase(text).find(sought) != std::string::npos;
    };
    return sought.empty() || holds(report.Station) || holds(finding.Variable) || holds(finding.Text) ||
           holds(finding.Tag) || holds(finding.Row().Name);
}

void FrCheckStations::AddRowsOf(const audit::StationReport& report) {
    std::vector<ui::ListView::Row> rows;
    for (const audit::Finding& finding : report.Findings)
        if (IsWanted(report, finding)) {
            shown_.push_back({&report, &finding});
            rows.push_back(audit::TableCells(shown_.back()));
            rows.back().pop_back(); // the rule has no column
        }
    if (!rows.empty())
        ListView1.AddRows(std::move(rows));
}

void FrCheckStations::ShowRows() {
    ListView1.ClearRows();
    shown_.clear();
    for (const auto& report : reports_)
        AddRowsOf(*report);
}

void FrCheckStations::OpenRow(int row) {
    const audit::FindingAt at = shown_.at(static_cast<std::size_t>(row - 1));
    const std::string station = at.Report->Station;
    const int run = at.Finding->Run;
    End("Stopped");
    Unload();
    program_.Forms.Get<GFCPrincipal>().GoTo(station, run);
}

void FrCheckStations::Copy() {
    if (auto* exchange = dynamic_cast<ui::Exchange*>(&program_.Screen))
        exchange->CopyText(audit::AsTabbedText(shown_));
}

void FrCheckStations::Save() {
    SaveTo({.Title = "Save the findings",
            .Name = session_.Project.ProjectName + "_findings.csv",
            .Kinds = {{"Table", "*.csv"}, {"Page", "*.html"}}},
           "the findings", [this](const std::string& file) {
               return IsPage(file) ? audit::AsHtml(shown_, session_.Project.ProjectName)
                                   : audit::AsCsv(shown_);
           });
}

} // namespace gfc::forms
