#include "record/History.h"

#include "platform/Folder.h"
#include "record/KeptFile.h"

namespace gfc::record {
namespace {

constexpr std::string_view facts = "number, time, user, machine, command, station, file, hash, previous";
constexpr int changesColumn = 9;
constexpr const char* noRecord = "The file of the history is not a record of this program.";

// Blobs stand behind all else in a row, so that a walk that leaves them out does not read their pages.
std::string Selection(const Walk& walk) {
    std::string sql = "SELECT " + std::string(facts) + (walk.Whole ? ", changes, content" : "");
    sql += " FROM entry WHERE 1";
    if (!walk.Station.empty())
        sql += " AND station = ?1";
    if (walk.Number != 0)
        sql += " AND number = ?2";
    return sql + " AND ?1 IS NOT NULL AND ?2 IS NOT NULL AND number > ?3 ORDER BY number";
}

void TakeRow(const Statement& row, bool whole, StoredEntry& entry) {
    auto& to = entry.Facts;
    to.Number = row.Integer(0);
    int column = 1;
    for (std::string* text : {&to.Time, &to.User, &to.MachineUser, &to.Command, &to.Station, &to.FileHash,
                              &to.Hash, &entry.Previous})
        *text = row.Bytes(column++);
    if (whole) {
        entry.Changes = row.Bytes(changesColumn);
        entry.Content = row.Bytes(changesColumn + 1);
    }
}

// A crash between the making of the file and that of its table leaves an empty one.
bool IsThere(const std::string& file) {
    return platform::FileSize(file).value_or(0) > 0;
}

// A view in the place of the table would have the reading of it run whatever somebody has put there, without
// an end perhaps. What is no table of the database itself has no page.
bool HasItsTable(Database& database) {
    Statement table(database,
                    "SELECT 1 FROM sqlite_schema WHERE name = 'entry' AND type = 'table' AND rootpage > 0");
    return table.Step();
}

} // namespace

std::int64_t Pragma(Database& database, const std::string& name) {
    Statement statement(database, "PRAGMA " + name);
    return statement.Step() ? statement.Integer(0) : 0;
}

std::optional<History> History::OpenToRead(const std::string& file) {
    if (!IsThere(file))
        return std::nullopt;
    History history(Database(file, Access::Read));
    // What a crash has left of the making is undone by now, and the file is empty again.
    if (Pragma(history.database_, "schema_version") == 0 && !IsThere(file))
        return std::nullopt;
    history.CheckIdentity();
    return history;
}

// The journal beside the file serves on shares, too, and is gone between two entries.
History History::OpenToWrite(const std::string& file) {
    History history(Database(file, Access::Write));
    history.database_.Run("PRAGMA journal_mode = DELETE; PRAGMA synchronous = FULL;"
                          "PRAGMA recursive_triggers = ON");
    if (Pragma(history.database_, "user_version") == 0)
        history.MakeTables();
    history.CheckIdentity();
    return history;
}

// Another program may have made them in the meantime.
void History::MakeTables() {
    Transaction transaction(database_);
    if (Pragma(database_, "schema_version") != 0)
        return;
    for (const SchemaPart& part : Schema)
        database_.Run(std::string(part.Statement));
    database_.Run("PRAGMA application_id = " + std::to_string(RecordId));
    database_.Run("PRAGMA user_version = " + std::to_string(RecordForm));
    transaction.Commit();
}

void History::CheckIdentity() {
    if (Pragma(database_, "application_id") != RecordId)
        throw Failure(noRecord);
    if (Pragma(database_, "user_version") != RecordForm)
        throw Failure("The history was written by a newer version of this program.");
    if (!HasItsTable(database_))
        throw Failure(noRecord);
}

void History::ForEach(const Walk& walk, const std::function<bool(const StoredEntry&)>& visit) {
    Statement rows(database_, Selection(walk));
    rows.With(walk.Station, walk.Number, walk.Behind);
    while (rows.Step()) {
        StoredEntry entry;
        TakeRow(rows, walk.Whole, entry);
        if (!visit(entry))
            return;
    }
}

std::optional<StoredEntry> History::LastOf(std::string_view station) {
    Statement last(database_, "SELECT " + std::string(facts) +
                                  ", changes, content FROM entry WHERE station = ? "
                                  "ORDER BY number DESC LIMIT 1");
    if (!last.With(station).Step())
        return std::nullopt;
    StoredEntry entry;
    TakeRow(last, true, entry);
    return entry;
}

std::vector<std::string> History::WayBack(const StoredEntry& entry) {
    std::vector<std::string> way = {entry.Content};
    Statement before(database_, "SELECT content FROM entry WHERE number = ?");
    for (std::int64_t number = entry.Facts.Number;;) {
        const std::int64_t base = BaseOf(way.back());
        if (base == 0)
            return way;
        if (base < 0 || base >= number || way.size() > LongestWay || !before.With(base).Step())
            return {};
        way.push_back(before.Text(0));
        number = base;
    }
}

std::optional<std::string> History::FileOf(const StoredEntry& entry) {
    std::optional<std::string> file;
    if (entry.Facts.FileHash.empty())
        return file;
    for (auto way = WayBack(entry); !way.empty(); way.pop_back())
        if (file = FileIn(way.back(), file.value_or(std::string())); !file)
            break;
    return file;
}

std::string History::Keep(std::string_view station, std::string_view file) {
    const auto last = LastOf(station);
    if (!last || WayBack(*last).size() > LongestWay)
        return KeepWhole(file);
    const auto base = FileOf(*last);
    return base ? KeepLike(file, last->Facts.Number, *base) : KeepWhole(file);
}

void History::Append(StoredEntry entry) {
    auto& to = entry.Facts;
    to.Number = 1;
    Statement last(database_, "SELECT number, hash FROM entry ORDER BY number DESC LIMIT 1");
    if (last.Step()) {
        to.Number = last.Integer(0) + 1;
        entry.Previous = last.Text(1);
    }
    to.Hash = HashOf(entry);
    Statement insert(database_, "INSERT INTO entry (" + std::string(facts) +
                                    ", changes, content) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
    insert
        .With(to.Number, to.Time, to.User, to.MachineUser, to.Command, to.Station, to.FileHash, to.Hash,
              entry.Previous, Blob{entry.Changes}, Blob{entry.Content})
        .Execute();
}

} // namespace gfc::record
