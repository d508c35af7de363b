#include "forms/tools/CompareSide.h"

#include "config/VarINIFile.h"
#include "forms/tools/EntryText.h"
#include "platform/Machine.h"

#include <algorithm>
#include <utility>

namespace gfc::forms {

namespace {

constexpr const char* fromDisk = "File from disk...";
constexpr const char* asItStands = "as it stands";
// As many as anybody looks through; older ones come from the window of the history.
constexpr std::size_t statesOffered = 100;

} // namespace

void CompareSide::Fill(const std::vector<std::string>& stations, std::string record) {
    record_ = std::move(record);
    ByProgram([&] {
        for (const std::string& station : stations)
            lists_.Whose.AddEntry(station);
        lists_.Whose.AddEntry(fromDisk);
        lists_.Part.AddEntry("All");
        for (int run = 1; run <= config::MaxRuns; ++run)
            lists_.Part.AddEntry("Run " + std::to_string(run));
        lists_.Part.SetListIndex(0);
    });
    Connect();
}

void CompareSide::Connect() {
    const auto unlessByProgram = [this](const std::function<void()>& act) {
        return [this, act] {
            if (byProgram_)
                return;
            act();
            if (OnChanged)
                OnChanged();
        };
    };
    lists_.Whose.OnClick = unlessByProgram([this] { TakeWhose(); });
    lists_.State.OnClick = unlessByProgram([] {});
    lists_.Part.OnClick = unlessByProgram([] {});
}

void CompareSide::ByProgram(const std::function<void()>& choosing) {
    const bool was = std::exchange(byProgram_, true);
    choosing();
    byProgram_ = was;
}

void CompareSide::Choose(const std::string& station, std::int64_t entry, int run) {
    const auto& offered = lists_.Whose.Entries();
    if (std::ranges::find(offered, station) == offered.end())
        return;
    station_ = station;
    file_.clear();
    ByProgram([&] { lists_.Whose.SetListIndex(IndexOfWhose()); });
    FillStates(entry);
    ChooseRun(run);
}

void CompareSide::ChooseRun(int run) {
    ByProgram([&] { lists_.Part.SetListIndex(run); });
}

void CompareSide::Exchange(CompareSide& other) {
    const std::int64_t own = Entry();
    const std::int64_t others = other.Entry();
    const int run = Run();
    std::swap(station_, other.station_);
    std::swap(file_, other.file_);
    ByProgram([&] { lists_.Whose.SetListIndex(IndexOfWhose()); });
    other.ByProgram([&] { other.lists_.Whose.SetListIndex(other.IndexOfWhose()); });
    FillStates(others);
    other.FillStates(own);
    ChooseRun(other.Run());
    other.ChooseRun(run);
}

// A file that the other side has chosen is offered here, too.
int CompareSide::IndexOfWhose() const {
    const std::string& name = IsFile() ? file_ : station_;
    const auto& offered = lists_.Whose.Entries();
    const auto found = std::ranges::find(offered, name);
    if (found != offered.end())
        return static_cast<int>(found - offered.begin());
    lists_.Whose.AddEntry(name);
    return static_cast<int>(offered.size()) - 1;
}

void CompareSide::TakeWhose() {
    const std::string chosen = lists_.Whose.Text();
    const auto& offered = lists_.Whose.Entries();
    const auto disk = std::ranges::find(offered, fromDisk) - offered.begin();
    if (lists_.Whose.ListIndex() == disk)
        return TakeFile();
    const bool isFile = lists_.Whose.ListIndex() > disk;
    station_ = isFile ? std::string() : chosen;
    file_ = isFile ? chosen : std::string();
    FillStates(0);
}

// Without a choice it stays at what was shown.
void CompareSide::TakeFile() {
    const auto file = program_.Screen.ChooseFile(
        {.Title = "Compare with a file", .FilterName = "Configuration (*.ini)", .Pattern = "*.ini"});
    if (file && !file->empty()) {
        file_ = *file;
        station_.clear();
    }
    ByProgram([&] { lists_.Whose.SetListIndex(IndexOfWhose()); });
    FillStates(0);
}

// The newest first; the entry that is wanted whatever its age.
void CompareSide::FillStates(std::int64_t withEntry) {
    std::vector<config::RecordEntry> entries;
    if (!IsFile())
        entries = program_.Recorder.Entries(record_, station_);
    std::ranges::reverse(entries);
    entries_.clear();
    ByProgram([&] {
        lists_.State.Clear();
        lists_.State.AddEntry(asItStands);
        int wanted = 0;
        for (const config::RecordEntry& entry : entries) {
            const bool isWanted = entry.Number == withEntry;
            if (entry.FileHash.empty() || (entries_.size() >= statesOffered && !isWanted))
                continue;
            entries_.push_back(entry.Number);
            lists_.State.AddEntry(ShortTextOf(entry));
            wanted = isWanted ? static_cast<int>(entries_.size()) : wanted;
        }
        lists_.State.SetListIndex(wanted);
    });
    lists_.State.SetEnabled(!IsFile());
}

std::int64_t CompareSide::Entry() const {
    const int state = lists_.State.ListIndex();
    return state <= 0 ? 0 : entries_.at(static_cast<std::size_t>(state - 1));
}

int CompareSide::Run() const {
    return std::max(0, lists_.Part.ListIndex());
}

std::string CompareSide::Name() const {
    std::string name = IsFile() ? file_.substr(file_.find_last_of("/\\") + 1) : station_;
    if (!IsFile())
        name += Entry() == 0 ? " " + std::string(asItStands) : ", entry " + std::to_string(Entry());
    return Run() == 0 ? name : name + ", run " + std::to_string(Run());
}

config::FileState CompareSide::Read(std::string& reason) const {
    const auto& project = program_.Session.Project;
    const std::string path = IsFile() ? file_ : project.ConfigFileOf(station_);
    auto bytes =
        Entry() == 0 ? program_.Machine.Files.Read(path) : program_.Recorder.Generation(record_, Entry());
    if (bytes)
        return bytes;
    if (Entry() != 0)
        reason = "The history does not give out the configuration of entry " + std::to_string(Entry()) + ".";
    else if (!IsFile() && station_.empty())
        reason = "The project has no stations.";
    else if (IsFile() || program_.Machine.Files.Exists(path))
        reason = "The file cannot be read: " + path;
    else
        reason = station_ + " has no configuration.";
    return bytes;
}

} // namespace gfc::forms
