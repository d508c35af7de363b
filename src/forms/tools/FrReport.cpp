#include "forms/tools/FrReport.h"

#include "forms/tools/EntryText.h"
#include "forms/tools/ToolStations.h"

#include <algorithm>

namespace gfc::forms {

namespace {

constexpr int helpContext = 8400;
// As many as anybody looks through; the newest first.
constexpr std::size_t entriesOffered = 200;

} // namespace

FrReport::FrReport(Program& program) : ToolForm(program, "FrReport", "Report", helpContext) {
    ListView1.OnMarked = [this] { ShowState(); };
    ListView1.OnRowOpened = [this](int row) { (void)ListView1.PersonMarksRow(row); };
    Command1.OnClick = [this] { MarkAll(true); };
    Command2.OnClick = [this] { MarkAll(false); };
    Command3.OnClick = [this] { OpenHelp(); };
    Command4.OnClick = [this] { End("Stopped: no report was made"); };
    Command5.OnClick = [this] { Make(); };
    Command6.OnClick = [this] { Unload(); };
    Timer1.OnTimer = [this] { MakeOn(); };
    SetCancelButton(Command6);
}

void FrReport::Load() {
    FillStations();
    FillChanges();
    for (const char* paper : {"A4", "Letter"})
        Combo2.AddEntry(paper);
    Combo2.SetListIndex(0);
    Text1.SetText(session_.Station.UserId);
    ShowState();
}

void FrReport::Unloading() {
    Timer1.SetEnabled(false);
}

// The station at the selected node, or all of them.
void FrReport::FillStations() {
    ListView1.AddColumns({{"", 3}, {"Station", 24}, {"Configuration"}});
    const std::string selected = SelectedStation(program_);
    std::vector<ui::ListView::Row> rows;
    for (const std::string& station : StationNames(program_)) {
        const bool marked = selected.empty() || selected == station;
        const bool configured = program_.Ini.FileExists(session_.Project.ConfigFileOf(station));
        rows.push_back(
            {marked ? ui::CheckableList::Mark : "", station, configured ? "configured" : "not configured"});
    }
    ListView1.AddRows(std::move(rows));
}

void FrReport::FillChanges() {
    auto entries = program_.Recorder.Entries(
        config::RecordPath(session_.Project.Paths, session_.Project.ProjectName), {});
    std::ranges::reverse(entries);
    entries.resize(std::min(entries.size(), entriesOffered));
    Combo1.AddEntry("not listed");
    Combo1.AddEntry("the beginning of the history");
    since_ = {0};
    for (const config::RecordEntry& entry : entries) {
        Combo1.AddEntry("entry " + ShortTextOf(entry) + ", " + entry.Station);
        since_.push_back(entry.Number);
    }
    Combo1.SetListIndex(0);
}

void FrReport::MarkAll(bool marked) {
    for (int row = 1; row <= ListView1.Count(); ++row)
        ListView1.SetMarked(row, marked);
    ShowState();
}

// While one is made the window changes nothing of it.
void FrReport::ShowState() {
    const auto marked = static_cast<std::size_t>(ListView1.MarkedCount());
    const bool making = work_ != nullptr;
    if (making)
        Label5.SetCaption("Making: " + std::to_string(work_->Done()) + " of " +
                          std::to_string(work_->Total()) + " steps");
    else
        Label5.SetCaption("Chosen: " + std::to_string(marked) + " of " +
                          Counted(static_cast<std::size_t>(ListView1.Count()), "station", "stations"));
    for (ui::Control* control :
         std::initializer_list<ui::Control*>{&ListView1, &Command1, &Command2, &Text1, &Combo1, &Combo2})
        control->SetEnabled(!making);
    Command4.SetEnabled(making);
    Command5.SetEnabled(!making && marked > 0 && program_.Reports != nullptr);
}

audit::ReportOrder FrReport::Ordered() const {
    audit::ReportOrder order;
    for (int row = 1; row <= ListView1.Count(); ++row)
        if (ListView1.IsMarked(row))
            order.Stations.push_back(ListView1.Cell(row, 1));
    order.User = Text1.Text();
    if (const int since = Combo1.ListIndex(); since > 0)
        order.Since = since_.at(static_cast<std::size_t>(since - 1));
    order.Letter = Combo2.ListIndex() == 1;
    order.File = file_;
    return order;
}

void FrReport::Make() {
    auto* exchange = dynamic_cast<ui::Exchange*>(&program_.Screen);
    if (exchange == nullptr)
        return;
    const auto file =
        exchange->ChooseTarget({.Title = "Save the report",
                                .Name = session_.Project.ProjectName + "_report.pdf",
                                .Kinds = {{"PDF", "*.pdf"}, {"Page", "*.html"}, {"For programs", "*.json"}}});
    if (file && !program_.Screen.Ended())
        Begin(*file);
}

void FrReport::Begin(const std::string& file) {
    file_ = file;
    work_ = program_.Reports->Begin(session_.Project, program_.Library, Ordered());
    Timer1.SetEnabled(true);
    ShowState();
}

// The window may be closed while the library takes its time over a station.
void FrReport::MakeOn() {
    const auto alive = KeepAlive();
    const bool goesOn = work_->Advance();
    if (IsUnloaded())
        return;
    goesOn ? ShowState() : Finish();
}

void FrReport::Finish() {
    Timer1.SetEnabled(false);
    const auto made = std::exchange(work_, nullptr);
    const bool written = Write(file_, made->Bytes(), "the report");
    if (!IsUnloaded())
        End(written ? "Written: " + file_ + "; content " + made->ContentHash() : "No report was written");
}

void FrReport::End(const std::string& state) {
    Timer1.SetEnabled(false);
    work_.reset();
    ShowState();
    Label5.SetCaption(state);
}

} // namespace gfc::forms
