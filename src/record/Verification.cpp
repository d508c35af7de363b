#include "record/Verification.h"

#include "record/Compression.h"
#include "record/KeptFile.h"
#include "record/Sha256.h"

namespace gfc::record {
namespace {

constexpr int entriesAStep = 64;

bool HasItsChanges(const StoredEntry& entry) {
    if (entry.Changes.empty())
        return !entry.Facts.FileHash.empty();
    const auto text = Expand(entry.Changes);
    return text && ReadChanges(*text);
}

bool IsFoundBy(Statement& byStation, const StoredEntry& entry) {
    return byStation.With(entry.Facts.Station, entry.Facts.Number).Step() && byStation.Integer(0) == 1;
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

} // namespace

// Each file is had from the one before it, so that the whole is read once.
bool Verification::HasItsFile(const StoredEntry& entry) {
    Left& left = left_[entry.Facts.Station];
    if (entry.Facts.FileHash.empty()) {
        left = {};
        return entry.Content.empty();
    }
    const std::int64_t base = BaseOf(entry.Content);
    auto file = base == 0 || base == left.Entry ? FileIn(entry.Content, left.File) : std::nullopt;
    if (!file || Sha256(*file) != entry.Facts.FileHash)
        return false;
    left = {entry.Facts.Number, std::move(*file)};
    return true;
}

const char* Verification::DoubtOn(const StoredEntry& entry, Statement& byStation) {
    if (entry.Facts.Number != check_.Entries + 1)
        return "It does not have the next number: an entry before it is missing.";
    if (entry.Previous != check_.LastHash)
        return "It does not follow the entry before it: that one is another than it was.";
    if (entry.Facts.Hash != HashOf(entry))
        return "It does not have its hash: it was changed after it was written.";
    if (!HasItsFile(entry))
        return "The file that it keeps does not have its hash.";
    if (!HasItsChanges(entry))
        return "The changes that it keeps cannot be read.";
    return IsFoundBy(byStation, entry) ? nullptr : "It is not found by its station.";
}

// The rest of the walk cannot be judged once an entry does not hold.
void Verification::CheckEntry(const StoredEntry& entry, Statement& byStation) {
    if (const char* doubt = DoubtOn(entry, byStation)) {
        check_.Damage = {check_.Entries + 1, doubt};
        return;
    }
    check_.Entries = entry.Facts.Number;
    check_.LastHash = entry.Facts.Hash;
}

void Verification::CheckTheFile() {
    Database& database = history_->Data();
    if (!EndsWithItsLast(database, check_.Entries))
        check_.Damage = {check_.Entries + 1, "It is missing: the record had more entries than it has."};
    else if (!HasItsSchema(database))
        check_.Damage = {0, "The table of the record, or a rule that guards it, is not as it was made."};
    else if (!IsSound(database))
        check_.Damage = {0, "The database of the record is damaged where no entry stands."};
}

// Between two steps nothing is held open for reading, so that no other program has to wait with an entry.
bool Verification::CheckSome() {
    if (!history_ && !(history_ = History::OpenToRead(file_)))
        return false;
    Statement byStation(history_->Data(), "SELECT count(*) FROM entry INDEXED BY entry_of_station "
                                          "WHERE station = ? AND rowid = ?");
    int count = 0;
    history_->ForEach({.Behind = check_.Entries, .Whole = true}, [&](const StoredEntry& entry) {
        CheckEntry(entry, byStation);
        return !check_.Damage && ++count < entriesAStep;
    });
    if (check_.Damage)
        return false;
    if (count == entriesAStep)
        return true;
    CheckTheFile();
    return false;
}

// A page that cannot be read ends the walk at the first entry that needs it.
bool Verification::Advance() {
    if (through_)
        return false;
    try {
        through_ = !CheckSome();
    } catch (const Failure& failure) {
        through_ = true;
        if (!check_.Damage)
            check_.Damage = {check_.Entries + 1, failure.what()};
    }
    return !through_;
}

config::RecordCheck VerifyRecord(const std::string& file) {
    Verification verification(file);
    while (verification.Advance()) {
    }
    return verification.SoFar();
}

} // namespace gfc::record
