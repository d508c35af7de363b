#include "record/ProjectRecorder.h"

#include "record/Compression.h"
#include "record/History.h"
#include "record/Sha256.h"
#include "record/Verification.h"
#include "services/UtcText.h"

#include <algorithm>

namespace gfc::record {
namespace {

using config::FileChange;
using config::FileState;

std::string HashOfFile(const FileState& file) {
    return file ? Sha256(*file) : std::string();
}

std::string_view BytesOf(const FileState& file) {
    return file ? std::string_view(*file) : std::string_view();
}

// What may throw; its message, or nothing.
template <class Work>
std::string TroubleOf(Work work) {
    try {
        work();
        return {};
    } catch (const Failure& failure) {
        return failure.what();
    }
}

} // namespace

struct ProjectRecorder::Known {
    bool Ever = false;
    std::string FileHash;

    [[nodiscard]] bool Is(const FileState& file) const { return FileHash == HashOfFile(file); }
};

ProjectRecorder::Known ProjectRecorder::LastKnown(History& history, const std::string& station) {
    const auto last = history.LastOf(station);
    return last ? Known{true, last->Facts.FileHash} : Known{};
}

template <class Work>
void ProjectRecorder::Reading(Work work) {
    unread_ = TroubleOf(work);
}

std::string ProjectRecorder::Trouble() {
    if (!unread_.empty())
        return unread_;
    return missing_.empty() ? std::string() : missing_.begin()->second;
}

void ProjectRecorder::Note(const std::vector<FileChange>& changes, const std::string& trouble) {
    for (const FileChange& change : changes)
        if (trouble.empty())
            missing_.erase({change.Record, change.Station});
        else
            missing_[{change.Record, change.Station}] = trouble;
}

// Without a lock: most that are looked at have not changed.
bool ProjectRecorder::IsNews(const std::string& record, const std::vector<FileChange>& changes) {
    auto history = History::OpenToRead(record);
    return std::ranges::any_of(changes, [&](const FileChange& change) {
        const Known known = history ? LastKnown(*history, change.Station) : Known{};
        return !known.Is(change.Before) || change.Before != change.After;
    });
}

void ProjectRecorder::Record(std::vector<FileChange> changes) {
    unread_.clear();
    Note(changes, TroubleOf([&] {
             if (!changes.empty() && IsNews(changes.front().Record, changes))
                 EnterAll(changes);
         }));
}

void ProjectRecorder::EnterAll(const std::vector<FileChange>& changes) {
    History history = History::OpenToWrite(changes.front().Record);
    Transaction transaction(history.Data());
    for (const FileChange& change : changes)
        Enter(history, change);
    transaction.Commit();
}

// What something else did to the file comes before what the command did to it.
void ProjectRecorder::Enter(History& history, const FileChange& change) {
    const Known known = LastKnown(history, change.Station);
    if (!known.Is(change.Before)) {
        const auto command = known.Ever ? config::command::FoundChanged : config::command::Found;
        Append(history,
               {.Record = change.Record,
                .Station = change.Station,
                .Command = std::string(command),
                .User = {},
                .Before = {},
                .After = change.Before},
               known.Ever ? history.FileOf(*history.LastOf(change.Station)) : change.Before);
    }
    if (change.Before != change.After)
        Append(history, change, change.Before);
}

void ProjectRecorder::Append(History& history, const FileChange& change, const FileState& before) {
    StoredEntry entry;
    auto& facts = entry.Facts;
    facts.Time = services::UtcText(clock_, zone_);
    facts.User = change.User;
    facts.MachineUser = machineUser_;
    facts.Command = change.Command;
    facts.Station = change.Station;
    facts.FileHash = HashOfFile(change.After);
    // What a new file brings is in the file.
    if (before || !change.After)
        entry.Changes = Compress(ChangesText(config::ChangesOf(BytesOf(before), BytesOf(change.After))));
    if (change.After)
        entry.Content = history.Keep(change.Station, *change.After);
    history.Append(std::move(entry));
}

std::vector<config::RecordEntry> ProjectRecorder::Entries(const std::string& record,
                                                          std::string_view station) {
    std::vector<config::RecordEntry> entries;
    Reading([&] {
        if (auto history = History::OpenToRead(record))
            history->ForEach({.Station = station}, [&](const StoredEntry& entry) {
                entries.push_back(entry.Facts);
                return true;
            });
    });
    return entries;
}

namespace {

std::optional<StoredEntry> EntryOf(History& history, std::int64_t number) {
    std::optional<StoredEntry> found;
    history.ForEach({.Number = number, .Whole = true}, [&](const StoredEntry& entry) {
        found = entry;
        return false;
    });
    return found;
}

std::vector<config::KeyChange> ChangesIn(History& history, const StoredEntry& entry) {
    if (entry.Changes.empty())
        return config::ChangesOf({}, BytesOf(history.FileOf(entry)));
    const auto text = Expand(entry.Changes);
    return text ? ReadChanges(*text).value_or(std::vector<config::KeyChange>())
                : std::vector<config::KeyChange>();
}

} // namespace

std::vector<config::KeyChange> ProjectRecorder::Changes(const std::string& record, std::int64_t number) {
    auto changes = ChangesOf(record, number, number);
    return changes.empty() ? std::vector<config::KeyChange>() : std::move(changes.front().Keys);
}

std::vector<config::EntryChanges> ProjectRecorder::ChangesOf(const std::string& record, std::int64_t first,
                                                             std::int64_t last) {
    std::vector<config::EntryChanges> changes;
    Reading([&] {
        if (auto history = History::OpenToRead(record))
            history->ForEach({.Behind = first - 1, .Whole = true}, [&](const StoredEntry& entry) {
                if (entry.Facts.Number <= last)
                    changes.push_back({entry.Facts.Number, ChangesIn(*history, entry)});
                return entry.Facts.Number < last;
            });
    });
    return changes;
}

FileState ProjectRecorder::Generation(const std::string& record, std::int64_t number) {
    FileState file;
    Reading([&] {
        if (auto history = History::OpenToRead(record))
            if (const auto entry = EntryOf(*history, number))
                file = history->FileOf(*entry);
    });
    return file;
}

std::unique_ptr<config::RecordVerification> ProjectRecorder::BeginVerification(const std::string& record) {
    return std::make_unique<Verification>(record);
}

} // namespace gfc::record
