#include "forms/tools/FrCompare.h"

#include "config/RecordTimes.h"
#include "config/RunLayout.h"
#include "forms/tools/EntryText.h"
#include "forms/tools/ToolStations.h"
#include "platform/Machine.h"
#include "services/Text.h"
#include "services/UtcText.h"

#include <algorithm>

namespace gfc::forms {

namespace {

constexpr const char* title = "Compare";
constexpr int helpContext = 8300;
constexpr int daysAtFirst = 7;

bool Holds(const std::string& text, const std::string& folded) {
    return services::FoldCase(text).find(folded) != std::string::npos;
}

} // namespace

FrCompare::FrCompare(Program& program) : ToolForm(program, "FrCompare", title, helpContext) {
    left_.OnChanged = [this] { AlignRuns(left_, right_); };
    right_.OnChanged = [this] { AlignRuns(right_, left_); };
    Command1.OnClick = [this] {
        left_.Exchange(right_);
        Compare();
    };
    Text1.OnEdited = [this] { ShowRows(); };
    Check1.OnClick = [this] { ShowRows(); };
    Command2.OnClick = [this] { BeginSince(); };
    ListView1.MayMark = [this](int row) { return MayMark(row); };
    ListView1.OnMarked = [this] { ShowState(); };
    ListView1.OnRowOpened = [this](int row) { (void)ListView1.PersonMarksRow(row); };
    Command3.OnClick = [this] { OpenHelp(); };
    Command4.OnClick = [this] { MarkAll(true); };
    Command5.OnClick = [this] { MarkAll(false); };
    Command6.OnClick = [this] { TakeMarkedOver(); };
    Command7.OnClick = [this] { EndSince("Stopped"); };
    Command8.OnClick = [this] { CopyTable(TableOfShown()); };
    Command9.OnClick = [this] { SaveTable(TableOfShown(), "the comparison", Label4.Caption()); };
    Command10.OnClick = [this] { Unload(); };
    Timer1.OnTimer = [this] { SinceOn(); };
    SetCancelButton(Command10);
}

void FrCompare::LookAt(const config::RecordEntry& entry) {
    first_ = entry;
}

void FrCompare::Load() {
    record_ = config::RecordPath(session_.Project.Paths, session_.Project.ProjectName);
    stations_ = StationNames(program_);
    auto offered = stations_;
    if (first_.Number != 0 && std::ranges::find(offered, first_.Station) == offered.end())
        offered.push_back(first_.Station);
    left_.Fill(offered, record_);
    right_.Fill(offered, record_);
    Text2.SetText(services::UtcDaysAgo(program_.Machine.Clock, program_.Machine.TimeZone, daysAtFirst));
    ChooseAtFirst();
    Compare();
}

void FrCompare::Unloading() {
    Timer1.SetEnabled(false);
}

// What the selected station has now, and what it had before its last entry.
void FrCompare::ChooseAtFirst() {
    if (first_.Number != 0) {
        left_.Choose(first_.Station, 0, 0);
        return right_.Choose(first_.Station, first_.Number, 0);
    }
    const std::string selected = SelectedStation(program_);
    const std::string station = selected.empty() && !stations_.empty() ? stations_.front() : selected;
    const auto entries = program_.Recorder.Entries(record_, station);
    std::int64_t before = 0;
    for (const config::RecordEntry& entry : entries)
        if (entry.Number != entries.back().Number && !entry.FileHash.empty())
            before = entry.Number;
    left_.Choose(station, 0, 0);
    right_.Choose(station, before, 0);
}

// A run compares with a run, and a whole file with a whole file.
void FrCompare::AlignRuns(CompareSide& changed, CompareSide& other) {
    if ((changed.Run() == 0) != (other.Run() == 0))
        other.ChooseRun(changed.Run());
    Compare();
}

void FrCompare::Clear(Mode mode) {
    Timer1.SetEnabled(false);
    mode_ = mode;
    rows_.clear();
    seen_.clear();
    trouble_.clear();
    unread_.clear();
    how_.clear();
    MakeColumns();
}

void FrCompare::Compare() {
    Clear(Mode::TwoSides);
    const auto left = left_.Read(trouble_);
    const auto right = left ? right_.Read(trouble_) : std::nullopt;
    if (left && right) {
        seen_[left_.Station()] = *left;
        for (auto& row : audit::Compare({*left, left_.Run()}, {*right, right_.Run()}))
            rows_.push_back({left_.Station(), std::move(row)});
    }
    ShowRows();
}

void FrCompare::BeginSince() {
    since_ = services::TypedTime(Text2.Text());
    Clear(Mode::SinceADay);
    next_ = 0;
    ShowRows();
    Timer1.SetEnabled(true);
    how_ = "Looking";
    ShowState();
}

void FrCompare::SinceOn() {
    if (next_ < stations_.size()) {
        const std::size_t from = rows_.size();
        CompareSince(stations_[next_++]);
        AddRows(from);
    }
    next_ < stations_.size() ? ShowState() : EndSince("Compared");
}

// A station that was never entered has nothing to be compared with.
void FrCompare::CompareSince(const std::string& station) {
    const auto entries = program_.Recorder.Entries(record_, station);
    if (entries.empty())
        return;
    const std::string path = session_.Project.ConfigFileOf(station);
    const auto now = program_.Machine.Files.Read(path);
    if (!now && program_.Machine.Files.Exists(path)) {
        unread_ += (unread_.empty() ? "" : ", ") + station;
        return;
    }
    const config::RecordEntry* then = config::EntryAt(entries, since_);
    const auto before =
        then == nullptr ? config::FileState() : program_.Recorder.Generation(record_, then->Number);
    if (now)
        seen_[station] = *now;
    for (auto& row : audit::Compare({now.value_or(std::string()), 0}, {before.value_or(std::string()), 0}))
        if (!row.IsEqual())
            rows_.push_back({station, std::move(row)});
}

void FrCompare::EndSince(const char* how) {
    Timer1.SetEnabled(false);
    how_ = how;
    ShowState();
}

void FrCompare::MakeColumns() {
    ListView1.ClearRows();
    ListView1.ClearColumns();
    const bool since = mode_ == Mode::SinceADay;
    std::vector<ui::ListView::Column> columns = {{"", 3}};
    if (since)
        columns.push_back({"Station", 18});
    columns.push_back({"Section", 10});
    columns.push_back({"Variable", 34});
    columns.push_back({"Key", 30});
    columns.push_back({since ? "Now" : left_.Name(), 26});
    columns.push_back({since ? "On " + services::ReadableTime(since_) : right_.Name()});
    ListView1.AddColumns(std::move(columns));
}

ui::ListView::Row FrCompare::CellsOf(const Row& row) const {
    const audit::ComparedRow& compared = row.Compared;
    ui::ListView::Row cells = {""};
    if (mode_ == Mode::SinceADay)
        cells.push_back(row.Station);
    for (const std::string& cell : {compared.Section, compared.Caption, compared.Key,
                                    audit::ShownValue(compared.Left, compared.LeftUnit),
                                    audit::ShownValue(compared.Right, compared.RightUnit)})
        cells.push_back(cell);
    return cells;
}

bool FrCompare::IsWanted(const Row& row) const {
    if (row.Compared.IsEqual() && !Check1.Value())
        return false;
    const std::string sought = services::FoldCase(Text1.Text());
    return sought.empty() ||
           std::ranges::any_of(CellsOf(row), [&](const std::string& cell) { return Holds(cell, sought); });
}

void FrCompare::ShowRows() {
    ListView1.ClearRows();
    shown_.clear();
    AddRows(0);
    ShowState();
}

void FrCompare::AddRows(std::size_t from) {
    std::vector<ui::ListView::Row> cells;
    for (std::size_t at = from; at < rows_.size(); ++at)
        if (IsWanted(rows_[at])) {
            shown_.push_back(at);
            cells.push_back(CellsOf(rows_[at]));
        }
    if (!cells.empty())
        ListView1.AddRows(std::move(cells));
}

void FrCompare::ShowState() {
    const auto differ = static_cast<std::size_t>(
        std::ranges::count_if(rows_, [](const Row& row) { return !row.Compared.IsEqual(); }));
    const int marked = ListView1.MarkedCount();
    std::string text = trouble_;
    if (text.empty() && mode_ == Mode::SinceADay)
        text = how_ + ": " + std::to_string(next_) + " of " +
               Counted(stations_.size(), "station", "stations") + "; " + Counted(differ, "value", "values") +
               " changed since " + services::ReadableTime(since_) +
               (unread_.empty() ? "" : "; cannot be read: " + unread_);
    else if (text.empty())
        text = differ == 0 ? "Both are equal: " + Counted(rows_.size(), "value", "values")
                           : std::to_string(differ) + " of " + Counted(rows_.size(), "value", "values") +
                                 (differ == 1 ? " differs" : " differ");
    if (marked > 0)
        text += "; " + std::to_string(marked) + " chosen";
    Label4.SetCaption(text);
    Command6.SetEnabled(marked > 0);
    Command7.SetEnabled(Timer1.Enabled());
    Command4.SetEnabled(!shown_.empty());
    Command5.SetEnabled(marked > 0);
    for (auto* command : {&Command8, &Command9})
        command->SetEnabled(!shown_.empty());
}

// Of the rows that are listed.
void FrCompare::MarkAll(bool marked) {
    std::string reason;
    for (int row = 1; row <= ListView1.Count(); ++row) {
        std::string own = marked ? ReasonAgainstMarking(RowAt(row)) : std::string();
        if (own.empty())
            ListView1.SetMarked(row, marked);
        else
            reason = std::move(own);
    }
    ShowState();
    if (marked && ListView1.MarkedCount() == 0)
        Label4.SetCaption(reason);
}

std::string FrCompare::ReasonAgainstMarking(const Row& row) const {
    if (mode_ == Mode::TwoSides && !left_.IsPresent())
        return "Values are taken over into what a station has now: choose that on the left side.";
    if (!seen_.contains(row.Station))
        return row.Station + " has no configuration into which a value could be taken over.";
    if (row.Compared.IsEqual())
        return "This value is the same on both sides.";
    return ReasonAgainstTaking(row.Compared.Section, row.Compared.Key);
}

bool FrCompare::MayMark(int row) {
    const std::string reason = ReasonAgainstMarking(RowAt(row));
    if (!reason.empty())
        Label4.SetCaption(reason);
    return reason.empty();
}

// In a comparison of runs the row may come from another run's section.
std::string FrCompare::SectionOf(const Row& row) const {
    const bool ofRun = mode_ == Mode::TwoSides && left_.Run() != 0;
    return ofRun ? config::RunSection(left_.Run()) : row.Compared.Section;
}

void FrCompare::TakeMarkedOver() {
    std::vector<TakenValue> values;
    std::string station;
    for (int at = 1; at <= ListView1.Count(); ++at) {
        if (!ListView1.IsMarked(at))
            continue;
        const Row& row = RowAt(at);
        if (!station.empty() && row.Station != station) {
            Tell("Please choose values of one station at a time.", ui::Icon::Exclamation);
            return;
        }
        station = row.Station;
        const auto& compared = row.Compared;
        values.push_back({SectionOf(row), compared.Key, compared.Right,
                          "[" + SectionOf(row) + "] " + compared.Caption + ": " +
                              audit::ShownValue(compared.Left, compared.LeftUnit) + " -> " +
                              audit::ShownValue(compared.Right, compared.RightUnit)});
    }
    if (values.empty() || !TakeOver(program_, station, seen_.at(station), values, title) ||
        program_.Screen.Ended() || IsUnloaded())
        return;
    mode_ == Mode::TwoSides ? Compare() : BeginSince();
}

services::TextTable FrCompare::TableOfShown() const {
    services::TextTable table;
    for (std::size_t column = 1; column < ListView1.Columns().size(); ++column)
        table.Headings.push_back(ListView1.Columns()[column].Heading);
    for (const std::size_t at : shown_) {
        auto cells = CellsOf(rows_[at]);
        cells.erase(cells.begin());
        table.Rows.push_back(std::move(cells));
    }
    return table;
}

} // namespace gfc::forms
