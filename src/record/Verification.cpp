#include "record/Verification.h"

#include "record/Compression.h"
#include "record/History.h"
#include "record/Sha256.h"

#include <array>

namespace gfc::record {
namespace {

using config::RecordCheck;

struct Doubt {
    const char* Reason;
    bool (*Holds)(const StoredEntry& entry, const RecordCheck& before);
};

bool HasNextNumber(const StoredEntry& entry, const RecordCheck& before) {
    return entry.Facts.Number == before.Entries + 1;
}

bool FollowsTheOneBefore(const StoredEntry& entry, const RecordCheck& before) {
    return entry.Previous == before.LastHash;
}

bool HasItsHash(const StoredEntry& entry, const RecordCheck&) {
    return entry.Facts.Hash == HashOf(entry);
}

bool HasItsFile(const StoredEntry& entry, const RecordCheck&) {
    if (entry.Facts.FileHash.empty())
        return entry.Content.empty();
    const auto file = Expand(entry.Content);
    return file && Sha256(*file) == entry.Facts.FileHash;
}

bool HasItsChanges(const StoredEntry& entry, const RecordCheck&) {
    const auto text = Expand(entry.Changes);
    return text && ReadChanges(*text);
}

constexpr std::array<Doubt, 5> doubts{{
    {"It does not have the next number: an entry before it is missing.", HasNextNumber},
    {"It does not follow the entry before it: that one is another than it was.", FollowsTheOneBefore},
    {"It does not have its hash: it was changed after it was written.", HasItsHash},
    {"The file that it keeps does not have its hash.", HasItsFile},
    {"The changes that it keeps cannot be read.", HasItsChanges},
}};

// The rest of the walk cannot be judged once an entry does not hold.
void CheckEntries(History& history, RecordCheck& check) {
    Statement byStation(history.Data(), "SELECT count(*) FROM entry INDEXED BY entry_of_station "
                                        "WHERE station = ? AND rowid = ?");
    history.ForEach({.Whole = true}, [&](const StoredEntry& entry) {
        for (const Doubt& doubt : doubts)
            if (!doubt.Holds(entry, check)) {
                check.Damage = {check.Entries + 1, doubt.Reason};
                return false;
            }
        if (!byStation.With(entry.Facts.Station, entry.Facts.Number).Step() || byStation.Integer(0) != 1) {
            check.Damage = {check.Entries + 1, "It is not found by its station."};
            return false;
        }
        check.Entries = entry.Facts.Number;
        check.LastHash = entry.Facts.Hash;
        return true;
    });
}

// The database counts its entries for itself, too.
bool EndsWithItsLast(Database& database, std::int64_t entries) {
    Statement count(database, "SELECT seq FROM sqlite_sequence WHERE name = 'entry'");
    return count.Step() ? count.KindOf(0) == Kind::Integer && count.Integer(0) == entries && !count.Step()
                        : entries == 0;
}

bool HasItsSchema(Database& database) {
    Statement parts(database, "SELECT name, sql FROM sqlite_schema WHERE name <> 'sqlite_sequence'");
    for (const SchemaPart& part : Schema)
        if (!parts.Step() || parts.Bytes(0) != part.Name || parts.Bytes(1) != part.Statement)
            return false;
    return !parts.Step();
}

bool IsSound(Database& database) {
    Statement check(database, "PRAGMA integrity_check");
    return check.Step() && check.Bytes(0) == "ok";
}

void CheckTheFile(Database& database, RecordCheck& check) {
    if (!EndsWithItsLast(database, check.Entries))
        check.Damage = {check.Entries + 1, "It is missing: the record had more entries than it has."};
    else if (!HasItsSchema(database))
        check.Damage = {0, "The table of the record, or a rule that guards it, is not as it was made."};
    else if (!IsSound(database))
        check.Damage = {0, "The database of the record is damaged where no entry stands."};
}

void Check(const std::string& file, RecordCheck& check) {
    auto history = History::OpenToRead(file);
    if (!history)
        return;
    CheckEntries(*history, check);
    if (!check.Damage)
        CheckTheFile(history->Data(), check);
}

} // namespace

// A page that cannot be read ends the walk at the first entry that needs it.
RecordCheck VerifyRecord(const std::string& file) {
    RecordCheck check;
    try {
        Check(file, check);
    } catch (const Failure& failure) {
        if (!check.Damage)
            check.Damage = {check.Entries + 1, failure.what()};
    }
    return check;
}

} // namespace gfc::record
