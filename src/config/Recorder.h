#pragma once

#include "config/KeyChanges.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The record of a project's configurations, as the rest of the system knows it: what was done to which
// station's file, when and by whom, and each state that a file ever had. How it is kept is not said here.
namespace gfc::config {

// The names of the commands, as the record and its windows write them.
namespace command {
inline constexpr std::string_view Wizard = "Configuration Wizard";
inline constexpr std::string_view Configure = "Configure";
inline constexpr std::string_view ModifyRun = "Modify run";
inline constexpr std::string_view AddRun = "Add run";
inline constexpr std::string_view EnableRun = "Enable run";
inline constexpr std::string_view DisableRun = "Disable run";
inline constexpr std::string_view CopyToStation = "Copy to station";
inline constexpr std::string_view CopyToProject = "Copy to project";
inline constexpr std::string_view Delete = "Delete";
inline constexpr std::string_view BringBack = "Bring back";
inline constexpr std::string_view TakeOver = "Take over";
// What no command did: a file that was there before its first entry, and one that something else has changed.
inline constexpr std::string_view Found = "Found";
inline constexpr std::string_view FoundChanged = "Found changed";
} // namespace command

struct ProjectPaths;

// The file in which the record of a project stands, beside the configurations. Empty where those have no
// place, or the project's name cannot be that of a file.
[[nodiscard]] std::string RecordPath(const ProjectPaths& paths, std::string_view project);

// The bytes of a file; nothing where there is none.
using FileState = std::optional<std::string>;

// What came of a command for one station's file. Where both states are the same the file was only looked at.
struct FileChange {
    std::string Record; // the record's own file, full path; the folder must be there
    std::string Station;
    std::string Command;
    std::string User; // the identity that the person gave; empty for none
    FileState Before;
    FileState After;
};

struct RecordEntry {
    std::int64_t Number = 0; // from 1, without gaps
    std::string Time;        // UTC, "2023-03-15T12:00:00Z"
    std::string User;        // empty where no person of this program made the change
    std::string MachineUser; // who was logged on at the machine that wrote the entry
    std::string Command;
    std::string Station;
    std::string FileHash; // SHA-256 of the file, 64 hexadecimal digits; empty where there is no file
    std::string Hash;     // SHA-256 of the entry and of the Hash before it

    bool operator==(const RecordEntry&) const = default;
};

// What was found wrong with a record.
struct RecordDamage {
    std::int64_t Entry = 0; // the first one that does not hold; 0 where all do and the file itself does not
    std::string Reason;     // a sentence
};

struct RecordCheck {
    std::int64_t Entries = 0; // that hold, from the first one on
    std::string LastHash;     // of the last of them
    std::optional<RecordDamage> Damage;
};

// A check of a whole record, in steps between which a person may end it.
class RecordVerification {
public:
    virtual ~RecordVerification() = default;
    // False once it is through, or has come to an entry that does not hold.
    virtual bool Advance() = 0;
    [[nodiscard]] virtual const RecordCheck& SoFar() const = 0;
};

// What an entry changed, key by key.
struct EntryChanges {
    std::int64_t Number = 0; // of the entry
    std::vector<KeyChange> Keys;
};

// No call throws.
class Recorder {
public:
    virtual ~Recorder() = default;

    // Enters what has changed, and before that what is found changed since the station's last entry. Does not
    // hold the caller up: what cannot be written is told by Trouble. A list belongs to one record.
    virtual void Record(std::vector<FileChange> changes) = 0;
    // Waits until all that was handed over is entered or has failed.
    virtual void Settle() = 0;
    // Whether it would wait.
    [[nodiscard]] virtual bool IsBusy() = 0;
    // Why entries are missing, as a sentence, until they are made up; after a reading that failed, why it
    // did. Empty where nothing is known to be missing.
    [[nodiscard]] virtual std::string Trouble() = 0;

    // Those of one station, of all for the empty name, in their order. Empty where there is no record, or
    // where it cannot be read; Trouble then says why.
    [[nodiscard]] virtual std::vector<RecordEntry> Entries(const std::string& record,
                                                           std::string_view station) = 0;
    // The keys that an entry changed.
    [[nodiscard]] virtual std::vector<KeyChange> Changes(const std::string& record, std::int64_t number) = 0;
    // The same of the entries from first to last, both included, in one reading.
    [[nodiscard]] virtual std::vector<EntryChanges> ChangesOf(const std::string& record, std::int64_t first,
                                                              std::int64_t last) = 0;
    // The whole file as it stood after the entry. Nothing where there was none, or no such entry.
    [[nodiscard]] virtual FileState Generation(const std::string& record, std::int64_t number) = 0;
    // Holds every entry against its hash and the one before it, and the file against what it has to be.
    [[nodiscard]] virtual std::unique_ptr<RecordVerification>
    BeginVerification(const std::string& record) = 0;
    [[nodiscard]] RecordCheck Verify(const std::string& record);
};

// For who keeps no record.
class NoRecorder : public Recorder {
public:
    void Record(std::vector<FileChange>) override {}
    void Settle() override {}
    bool IsBusy() override { return false; }
    std::string Trouble() override { return {}; }
    std::vector<RecordEntry> Entries(const std::string&, std::string_view) override { return {}; }
    std::vector<KeyChange> Changes(const std::string&, std::int64_t) override { return {}; }
    FileState Generation(const std::string&, std::int64_t) override { return {}; }
    std::vector<EntryChanges> ChangesOf(const std::string&, std::int64_t, std::int64_t) override {
        return {};
    }
    std::unique_ptr<RecordVerification> BeginVerification(const std::string&) override;
};

} // namespace gfc::config
