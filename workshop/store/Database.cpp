#include "workshop/store/Database.h"

#include "workshop/store/Failure.h"
#include "workshop/text/Paths.h"

#include <sqlite3.h>

namespace gfc::workshop {

namespace {

// Long enough for the other program to end its own short access.
constexpr int BusyMilliseconds = 3000;

int OpenFlags(Access access) {
    switch (access) {
    case Access::Read:
        return SQLITE_OPEN_READONLY;
    case Access::Write:
        return SQLITE_OPEN_READWRITE;
    case Access::Create:
        return SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
    }
    return SQLITE_OPEN_READONLY;
}

std::string AdviceOn(int result) {
    switch (result & 0xFF) {
    case SQLITE_NOTADB:
        return "it is not a project of this workshop";
    case SQLITE_CORRUPT:
        return "the file is damaged; take a good copy of it";
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return "another program is writing to it; try again";
    case SQLITE_CANTOPEN:
        return "the file cannot be opened; check the path and the access rights";
    case SQLITE_READONLY:
    case SQLITE_PERM:
        return "the file must not be written; check its access rights";
    case SQLITE_FULL:
        return "the disk is full";
    default:
        return sqlite3_errstr(result);
    }
}

} // namespace

void Database::Close::operator()(sqlite3* handle) const {
    sqlite3_close_v2(handle);
}

Database::Database(const std::filesystem::path& file, Access access) : file_(PathText(file)) {
    sqlite3* handle = nullptr;
    const int result = sqlite3_open_v2(file_.c_str(), &handle, OpenFlags(access), nullptr);
    handle_.reset(handle);
    Check(result);
    sqlite3_busy_timeout(handle, BusyMilliseconds);
}

void Database::Run(const char* statements) {
    Check(sqlite3_exec(Handle(), statements, nullptr, nullptr, nullptr));
}

int Database::Changes() const {
    return sqlite3_changes(Handle());
}

std::int64_t Database::LastRow() const {
    return sqlite3_last_insert_rowid(Handle());
}

void Database::Check(int result) const {
    if (result != SQLITE_OK && result != SQLITE_ROW && result != SQLITE_DONE) {
        throw Failure(file_ + ": " + AdviceOn(result) + ".");
    }
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

std::string_view Statement::Text(int column) const {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(handle_.get(), column));
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(handle_.get(), column));
    return text == nullptr ? std::string_view{} : std::string_view{text, size};
}

std::int64_t Statement::Integer(int column) const {
    return sqlite3_column_int64(handle_.get(), column);
}

void Statement::Reset() {
    sqlite3_reset(handle_.get()); // its result repeats the error of the last step, which was told already
}

void Statement::Bind(int parameter, std::string_view value) {
    const auto size = static_cast<sqlite3_uint64>(value.size());
    const char* text = value.data() == nullptr ? "" : value.data(); // a null pointer would bind NULL
    database_.Check(sqlite3_bind_text64(handle_.get(), parameter, text, size, SQLITE_TRANSIENT, SQLITE_UTF8));
}

void Statement::Bind(int parameter, std::int64_t value) {
    database_.Check(sqlite3_bind_int64(handle_.get(), parameter, value));
}

Transaction::Transaction(Database& database) : database_(database) {
    database.Run("BEGIN IMMEDIATE");
}

Transaction::~Transaction() {
    if (!open_) {
        return;
    }
    try {
        database_.Run("ROLLBACK");
    } catch (const Failure&) { // SQLite has rolled back by itself, or does so when the file is closed
    }
}

void Transaction::Commit() {
    database_.Run("COMMIT");
    open_ = false;
}

} // namespace gfc::workshop
