#pragma once

#include "record/Database.h"
#include "record/StoredEntry.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// One record: a database with one table of entries, which can only be added to. Everything here throws
// Failure.
namespace gfc::record {

// Which entries a walk visits, and whether it fetches their files and changes, which take most of the time.
struct Walk {
    std::string_view Station = {}; // empty for all
    std::int64_t Number = 0;       // one entry; 0 for all
    std::int64_t Behind = 0;       // those with a greater number
    bool Whole = false;
};

class History {
public:
    // Nothing where no such file is, or one that a crash has left empty.
    [[nodiscard]] static std::optional<History> OpenToRead(const std::string& file);
    // Makes the record where there is none.
    [[nodiscard]] static History OpenToWrite(const std::string& file);

    // In the order of their numbers, until the visitor has enough of it and returns false.
    void ForEach(const Walk& walk, const std::function<bool(const StoredEntry&)>& visit);
    // With its file; nothing where the station has none.
    [[nodiscard]] std::optional<StoredEntry> LastOf(std::string_view station);
    // The file that the entry left; nothing where there is none, or where what is kept is damaged.
    [[nodiscard]] std::optional<std::string> FileOf(const StoredEntry& entry);
    // How the file of the station's next entry is best kept.
    [[nodiscard]] std::string Keep(std::string_view station, std::string_view file);
    // Number, Previous and Hash come from here. Only within a transaction.
    void Append(StoredEntry entry);

    [[nodiscard]] Database& Data() { return database_; }

private:
    explicit History(Database database) : database_(std::move(database)) {}
    void MakeTables();
    void CheckIdentity();
    // What the entry keeps, and all that is needed to have it, the last of them kept whole. Empty where the
    // way does not lead there.
    [[nodiscard]] std::vector<std::string> WayBack(const StoredEntry& entry);

    Database database_;
};

// A number that the file's head holds, such as "user_version".
[[nodiscard]] std::int64_t Pragma(Database& database, const std::string& name);

// The number by which the system tells a record from other databases, and the form of its table.
inline constexpr std::int64_t RecordId = 0x47464352; // "GFCR"
inline constexpr std::int64_t RecordForm = 1;

// What the record's schema is made of, in its order: the name of each part and the statement that makes it.
struct SchemaPart {
    std::string_view Name;
    std::string_view Statement;
};
inline constexpr SchemaPart Schema[] = {
    {"entry",
     "CREATE TABLE entry (\n"
     "  number   INTEGER PRIMARY KEY AUTOINCREMENT,\n"
     "  time     TEXT NOT NULL, -- UTC\n"
     "  user     TEXT NOT NULL,\n"
     "  machine  TEXT NOT NULL, -- who was logged on there\n"
     "  command  TEXT NOT NULL,\n"
     "  station  TEXT NOT NULL,\n"
     "  file     TEXT NOT NULL, -- SHA-256 of the station's file\n"
     "  previous TEXT NOT NULL, -- hash of the entry before\n"
     "  hash     TEXT NOT NULL, -- SHA-256 of all else in the row\n"
     "  changes  BLOB NOT NULL, -- length, colon, zlib stream\n"
     "  content  BLOB NOT NULL  -- the same of the whole file, or how it differs from an earlier one\n"
     ") STRICT"},
    {"entry_of_station", "CREATE INDEX entry_of_station ON entry (station)"},
    {"entry_stays", "CREATE TRIGGER entry_stays BEFORE UPDATE ON entry\n"
                    "BEGIN SELECT RAISE(ABORT, 'an entry of the record never changes'); END"},
    {"entry_is_kept", "CREATE TRIGGER entry_is_kept BEFORE DELETE ON entry\n"
                      "BEGIN SELECT RAISE(ABORT, 'an entry of the record is never deleted'); END"},
    {"entry_follows",
     "CREATE TRIGGER entry_follows BEFORE INSERT ON entry\n"
     "WHEN NEW.number IS NOT (SELECT coalesce(max(number), 0) + 1 FROM entry)\n"
     "  OR NEW.previous IS NOT coalesce((SELECT hash FROM entry ORDER BY number DESC LIMIT 1), '')\n"
     "BEGIN SELECT RAISE(ABORT, 'an entry of the record follows the last one'); END"},
};

} // namespace gfc::record
