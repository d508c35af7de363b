#include "forms/tools/FrHistory.h"

#include "forms/tools/BringBack.h"
#include "forms/tools/EntryText.h"
#include "forms/tools/FrCompare.h"
#include "forms/tools/FrGeneration.h"
#include "forms/tools/ToolStations.h"
#include "services/UtcText.h"

#include <algorithm>
#include <iterator>

namespace gfc::forms {

namespace {

constexpr const char* title = "History";
constexpr int helpContext = 8200;
constexpr std::size_t entriesATick = 100;
constexpr const char* allStations = "All stations";
constexpr const char* allRuns = "All";

const std::vector<std::string> changeHeadings = {"Section", "Variable", "Key", "Old", "New"};

std::string UnitOf(const std::optional<audit::ShownUnits>& units, const std::string& key,
                   const std::optional<std::string>& value) {
    return units ? units->Of(key, value) : std::string();
}

} // namespace

FrHistory::FrHistory(Program& program) : ToolForm(program, "FrHistory", title, helpContext) {
    for (auto* combo : {&Combo1, &Combo2})
        combo->OnClick = [this] { LookAnew(); };
    for (auto* text : {&Text1, &Text2, &Text3, &Text4})
        text->OnEdited = [this] { LookAnew(); };
    ListView1.OnRowClick = [this](int row) { SelectEntry(row); };
    ListView1.OnRowOpened = [this](int) { ShowGeneration(); };
    Command1.OnClick = [this] { OpenHelp(); };
    Command2.OnClick = [this] { Verify(); };
    Command3.OnClick = [this] { Stop(); };
    Command4.OnClick = [this] { ShowGeneration(); };
    Command5.OnClick = [this] { CompareWithPresent(); };
    Command6.OnClick = [this] { BringBack(); };
    Command7.OnClick = [this] { CopyTable(TableOfAll()); };
    Command8.OnClick = [this] {
        SaveTable(TableOfAll(), "the history", "History of " + session_.Project.ProjectName);
    };
    Command9.OnClick = [this] { Unload(); };
    Timer1.OnTimer = [this] { LookOn(); };
    Timer2.OnTimer = [this] { VerifyOn(); };
    SetCancelButton(Command9);
}

// The lists of choices are filled before anybody follows them.
void FrHistory::Load() {
    ListView1.AddColumns({{"Entry", 6},
                          {"Time (UTC)", 23},
                          {"Station", 26},
                          {"Command", 22},
                          {"User ID", 12},
                          {"Logged on as", 14},
                          {"Changes"}});
    ListView2.AddColumns({{changeHeadings[0], 10},
                          {changeHeadings[1], 34},
                          {changeHeadings[2], 30},
                          {changeHeadings[3], 18},
                          {changeHeadings[4]}});
    Combo2.AddEntry(allRuns);
    for (int run = 1; run <= config::MaxRuns; ++run)
        Combo2.AddEntry(std::to_string(run));
    Combo2.SetListIndex(0);
    record_ = config::RecordPath(session_.Project.Paths, session_.Project.ProjectName);
    ReadEntries();
    FillStations();
}

void FrHistory::Unloading() {
    Timer1.SetEnabled(false);
    Timer2.SetEnabled(false);
}

void FrHistory::ReadEntries() {
    entries_ = program_.Recorder.Entries(record_, {});
}

// Those of the project, and those that only the history still knows; the one at the selected node first.
void FrHistory::FillStations() {
    std::vector<std::string> names = StationNames(program_);
    for (const config::RecordEntry& entry : entries_)
        if (std::ranges::find(names, entry.Station) == names.end())
            names.push_back(entry.Station);
    Combo1.AddEntry(allStations);
    for (const std::string& name : names)
        Combo1.AddEntry(name);
    const auto selected = std::ranges::find(names, SelectedStation(program_));
    Combo1.SetListIndex(selected == names.end() ? 0 : static_cast<int>(selected - names.begin()) + 1);
}

config::RecordFilter FrHistory::Wanted() const {
    config::RecordFilter wanted;
    if (Combo1.ListIndex() > 0)
        wanted.Stations = {Combo1.Text()};
    wanted.Run = std::max(0, Combo2.ListIndex());
    wanted.Key = Text1.Text();
    wanted.User = Text2.Text();
    wanted.Since = services::TypedTime(Text3.Text());
    wanted.Until = services::TypedTime(Text4.Text());
    return wanted;
}

void FrHistory::LookAnew() {
    filter_ = Wanted();
    next_ = entries_.size();
    shown_.clear();
    ListView1.ClearRows();
    ListView2.ClearRows();
    stopped_ = false;
    LookOn();
}

// What the newest entries changed is there at once; the rest comes while the window stands.
void FrHistory::LookOn() {
    if (next_ > 0) {
        const std::size_t first = next_ > entriesATick ? next_ - entriesATick : 0;
        AddRowsOf(program_.Recorder.ChangesOf(record_, entries_[first].Number, entries_[next_ - 1].Number));
        next_ = first;
    }
    Timer1.SetEnabled(next_ > 0);
    ShowState();
    OfferCommands();
}

void FrHistory::AddRowsOf(const std::vector<config::EntryChanges>& changes) {
    std::vector<ui::ListView::Row> rows;
    for (auto of = changes.rbegin(); of != changes.rend(); ++of) {
        const auto found = std::ranges::lower_bound(entries_, of->Number, {}, &config::RecordEntry::Number);
        const auto at = static_cast<std::size_t>(found - entries_.begin());
        if (found == entries_.end() || found->Number != of->Number || !filter_.Wants(*found))
            continue;
        const std::size_t count = WantedOf(of->Keys).size();
        if (count == 0 && filter_.AsksForChanges())
            continue;
        const config::RecordEntry& entry = entries_[at];
        shown_.push_back(at);
        rows.push_back({std::to_string(entry.Number), services::ReadableTime(entry.Time), entry.Station,
                        entry.Command, entry.User, entry.MachineUser,
                        std::to_string(count) + (entry.FileHash.empty() ? ", no file" : "")});
    }
    if (!rows.empty())
        ListView1.AddRows(std::move(rows));
}

std::vector<config::KeyChange> FrHistory::WantedOf(std::vector<config::KeyChange> changes) const {
    std::erase_if(changes, [this](const config::KeyChange& change) {
        return !filter_.Wants(change, audit::CaptionOf(change.Key));
    });
    return changes;
}

// What the values were shown with before the entry and after it. The files are fetched where it matters
// alone.
FrHistory::Units FrHistory::UnitsOf(const config::RecordEntry& entry,
                                    const std::vector<config::KeyChange>& changes) {
    if (std::ranges::none_of(changes, [](const auto& change) { return audit::ShownUnits::Has(change.Key); }))
        return {};
    const auto of = [this](std::int64_t number) {
        const auto file = program_.Recorder.Generation(record_, number);
        return file ? std::optional<audit::ShownUnits>(*file) : std::nullopt;
    };
    std::int64_t before = 0;
    for (const config::RecordEntry& earlier : entries_)
        if (earlier.Station == entry.Station && earlier.Number < entry.Number && !earlier.FileHash.empty())
            before = earlier.Number;
    return {before == 0 ? std::nullopt : of(before), of(entry.Number)};
}

std::vector<ui::ListView::Row> FrHistory::RowsOf(const config::RecordEntry& entry) {
    const auto changes = WantedOf(program_.Recorder.Changes(record_, entry.Number));
    const Units units = UnitsOf(entry, changes);
    std::vector<ui::ListView::Row> rows;
    for (const config::KeyChange& change : changes)
        rows.push_back({change.Section, audit::CaptionOf(change.Key), change.Key,
                        audit::ShownValue(change.Old, UnitOf(units.Old, change.Key, change.Old)),
                        audit::ShownValue(change.New, UnitOf(units.New, change.Key, change.New))});
    return rows;
}

void FrHistory::ShowState() {
    const std::string trouble = entries_.empty() ? program_.Recorder.Trouble() : std::string();
    const std::string all = Counted(entries_.size(), "entry", "entries");
    if (!trouble.empty())
        Label7.SetCaption("The history cannot be read. " + trouble);
    else if (verification_)
        Label7.SetCaption("Verifying: " + std::to_string(verification_->SoFar().Entries) + " of " + all);
    else if (next_ > 0)
        Label7.SetCaption((stopped_ ? "Stopped: " : "Looking: ") + std::to_string(entries_.size() - next_) +
                          " of " + all);
    else if (entries_.empty())
        Label7.SetCaption("No entries yet. The history begins with the first command that changes a file.");
    else
        Label7.SetCaption(shown_.size() == entries_.size() ? all
                                                           : std::to_string(shown_.size()) + " of " + all);
    Command3.SetEnabled(Timer1.Enabled() || Timer2.Enabled());
}

const config::RecordEntry* FrHistory::Selected() const {
    const int row = ListView1.SelectedRow();
    return row == 0 ? nullptr : &entries_[shown_[static_cast<std::size_t>(row - 1)]];
}

void FrHistory::SelectEntry(int) {
    ListView2.ClearRows();
    OfferCommands();
    const config::RecordEntry* entry = Selected();
    if (entry != nullptr)
        ListView2.AddRows(RowsOf(*entry));
}

// Nothing can be done with an entry that left no file.
void FrHistory::OfferCommands() {
    const config::RecordEntry* entry = Selected();
    for (auto* command : {&Command4, &Command5, &Command6})
        command->SetEnabled(entry != nullptr && !entry->FileHash.empty());
    Command2.SetEnabled(!entries_.empty());
    for (auto* command : {&Command7, &Command8})
        command->SetEnabled(!shown_.empty());
}

void FrHistory::ShowGeneration() {
    const config::RecordEntry* entry = Selected();
    const auto bytes =
        entry == nullptr ? config::FileState() : GenerationOf(program_, record_, *entry, title);
    if (!bytes)
        return;
    auto& window = program_.Forms.Get<FrGeneration>();
    window.LookAt(*entry, *bytes);
    window.ShowModal();
}

void FrHistory::CompareWithPresent() {
    if (const config::RecordEntry* entry = Selected()) {
        auto& window = program_.Forms.Get<FrCompare>();
        window.LookAt(*entry);
        window.ShowModal();
    }
}

void FrHistory::BringBack() {
    const config::RecordEntry* entry = Selected();
    if (entry == nullptr)
        return;
    const std::string station = entry->Station;
    if (!forms::BringBack(program_, record_, *entry, title) || program_.Screen.Ended() || IsUnloaded())
        return;
    ReadEntries();
    LookAnew();
}

void FrHistory::Verify() {
    verification_ = program_.Recorder.BeginVerification(record_);
    Timer2.SetEnabled(true);
    ShowState();
}

void FrHistory::VerifyOn() {
    if (verification_->Advance())
        return ShowState();
    Timer2.SetEnabled(false);
    const config::RecordCheck check = verification_->SoFar();
    verification_.reset();
    ShowState();
    TellVerified(check);
}

void FrHistory::TellVerified(const config::RecordCheck& check) {
    const std::string entries = Counted(static_cast<std::size_t>(check.Entries), "entry", "entries");
    if (!check.Damage) {
        Tell("The history holds, with " + entries + ".\r\n\r\nHash of the last entry:\r\n" + check.LastHash,
             ui::Icon::Information);
        return;
    }
    const std::string which =
        check.Damage->Entry == 0
            ? "The history itself was changed, though all its " + entries + " hold."
            : "Entry " + std::to_string(check.Damage->Entry) + " of the history does not hold.";
    Tell(which + "\r\n" + check.Damage->Reason, ui::Icon::Critical);
}

void FrHistory::Stop() {
    Timer1.SetEnabled(false);
    Timer2.SetEnabled(false);
    verification_.reset();
    stopped_ = true;
    ShowState();
}

// A line for each change of the entries that are listed.
services::TextTable FrHistory::TableOfAll() {
    services::TextTable table{{"Entry", "Time (UTC)", "Station", "Command", "User ID", "Logged on as"}, {}};
    table.Headings.insert(table.Headings.end(), changeHeadings.begin(), changeHeadings.end());
    for (const std::size_t at : shown_) {
        const config::RecordEntry& entry = entries_[at];
        const std::vector<std::string> head = {std::to_string(entry.Number),
                                               services::ReadableTime(entry.Time),
                                               entry.Station,
                                               entry.Command,
                                               entry.User,
                                               entry.MachineUser};
        auto changes = RowsOf(entry);
        if (changes.empty())
            table.Rows.push_back(head);
        for (auto& change : changes) {
            auto& row = table.Rows.emplace_back(head);
            row.insert(row.end(), std::make_move_iterator(change.begin()),
                       std::make_move_iterator(change.end()));
        }
    }
    return table;
}

} // namespace gfc::forms
