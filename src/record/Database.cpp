#include "record/Database.h"

#include "platform/Files.h"

#include <sqlite3.h>

namespace gfc::record {
namespace {

// Long enough for another program on a slow share to end its own entry.
constexpr int busyMilliseconds = 5000;

struct Advice {
    int Result;
    const char* Text;
};

// clang-format off
constexpr Advice advices[] = {
    {SQLITE_NOTADB,   "it is not a record of this program"},
    {SQLITE_CORRUPT,  "it is damaged; please keep it and put a good copy in its place"},
    {SQLITE_BUSY,     "another program is writing to it; please try again"},
    {SQLITE_LOCKED,   "another program is writing to it; please try again"},
    {SQLITE_CANTOPEN, "it cannot be opened; please check the folder and its access rights"},
    {SQLITE_READONLY, "it must not be written; please check its access rights and those of its folder"},
    {SQLITE_PERM,     "it must not be written; please check its access rights and those of its folder"},
    {SQLITE_FULL,     "the disk is full"},
    {SQLITE_CONSTRAINT, "it refuses an entry that does not follow its last one"},
};
// clang-format on

const char* AdviceOn(int result) {
    for (const Advice& advice : advices)
        if (advice.Result == (result & 0xFF))
            return advice.Text;
    return sqlite3_errstr(result);
}

} // namespace

void Database::Close::operator()(sqlite3* handle) const {
    sqlite3_close_v2(handle);
}

Database::Database(std::string file, Access access) : file_(std::move(file)) {
    // For a reader too, who else could not undo what a crash has left half done; where the file must not be
    // written it is opened to be read.
    const int flags = SQLITE_OPEN_READWRITE | (access == Access::Write ? SQLITE_OPEN_CREATE : 0);
    sqlite3* handle = nullptr;
    const int result = sqlite3_open_v2(platform::PathForCalls(file_).c_str(), &handle, flags, nullptr);
    handle_.reset(handle);
    Check(result);
    sqlite3_busy_timeout(handle, busyMilliseconds);
    // A record that somebody has prepared must not lead this program to run what it holds.
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
}

void Database::Run(const std::string& statements) {
    Check(sqlite3_exec(Handle(), statements.c_str(), nullptr, nullptr, nullptr));
}

void Database::Check(int result) const {
    if (result != SQLITE_OK && result != SQLITE_ROW && result != SQLITE_DONE)
        throw Failure(file_ + ": " + AdviceOn(result) + ".");
}

void Statement::Finalize::operator()(sqlite3_stmt* handle) const {
    sqlite3_finalize(handle);
}

Statement::Statement(Database& database, std::string_view sql) : database_(database) {
    sqlite3_stmt* handle = nullptr;
    database.Check(
        sqlite3_prepare_v2(database.Handle(), sql.data(), static_cast<int>(sql.size()), &handle, nullptr));
    handle_.reset(handle);
}

bool Statement::Step() {
    const int result = sqlite3_step(handle_.get());
    database_.Check(result);
    return result == SQLITE_ROW;
}

void Statement::Execute() {
    while (Step()) {
    }
    Reset(); // a statement left at its end would hold the lock of the file
}

std::string_view Statement::Bytes(int column) const {
    const auto* bytes = static_cast<const char*>(sqlite3_column_blob(handle_.get(), column));
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(handle_.get(), column));
    return bytes == nullptr ? std::string_view{} : std::string_view{bytes, size};
}

std::int64_t Statement::Integer(int column) const {
    return sqlite3_column_int64(handle_.get(), column);
}

Kind Statement::KindOf(int column) const {
    switch (sqlite3_column_type(handle_.get(), column)) {
    case SQLITE_INTEGER:
        return Kind::Integer;
    case SQLITE_TEXT:
        return Kind::Text;
    case SQLITE_BLOB:
        return Kind::Blob;
    default:
        return Kind::Other;
    }
}

void Statement::Reset() {
    sqlite3_reset(handle_.get()); // its result repeats the error of the last step, which was told already
}

// A null pointer would bind NULL.
void Statement::Bind(int parameter, std::string_view text) {
    database_.Check(sqlite3_bind_text64(handle_.get(), parameter, text.data() == nullptr ? "" : text.data(),
                                        text.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
}

void Statement::Bind(int parameter, std::int64_t number) {
    database_.Check(sqlite3_bind_int64(handle_.get(), parameter, number));
}

void Statement::Bind(int parameter, Blob blob) {
    database_.Check(sqlite3_bind_blob64(handle_.get(), parameter,
                                        blob.Bytes.data() == nullptr ? "" : blob.Bytes.data(),
                                        blob.Bytes.size(), SQLITE_TRANSIENT));
}

Transaction::Transaction(Database& database) : database_(database) {
    database.Run("BEGIN IMMEDIATE");
}

Transaction::~Transaction() {
    if (!open_)
        return;
    try {
        database_.Run("ROLLBACK");
    } catch (const Failure&) { // SQLite has rolled back by itself, or does so when the file is closed
    }
}

void Transaction::Commit() {
    database_.Run("COMMIT");
    open_ = false;
}

} // namespace gfc::record
