// A class per handle of SQLite, so that its header and its result codes stay in one source file.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace gfc::workshop {

enum class Access { Read, Write, Create };

class Database {
public:
    /// Throws Failure when the file cannot be opened so. Create wants a file that does not exist yet or is
    /// empty.
    Database(const std::filesystem::path& file, Access access);

    /// Runs one or more statements that give no rows.
    void Run(const char* statements);
    /// Rows that the last statement changed.
    [[nodiscard]] int Changes() const;
    [[nodiscard]] std::int64_t LastRow() const;
    /// Throws Failure naming the file unless `result` is a success code.
    void Check(int result) const;
    [[nodiscard]] sqlite3* Handle() const { return handle_.get(); }

private:
    struct Close {
        void operator()(sqlite3* handle) const;
    };
    std::string file_;
    std::unique_ptr<sqlite3, Close> handle_;
};

/// One prepared statement; parameters and columns count from 1 and from 0, as SQLite has it.
class Statement {
public:
    Statement(Database& database, std::string_view sql);

    /// Binds every parameter, in order.
    template <typename... Values>
    Statement& With(const Values&... values) {
        Reset();
        int at = 0;
        (Bind(++at, values), ...);
        return *this;
    }
    /// False when there is no further row.
    [[nodiscard]] bool Step();
    /// For statements that give no row.
    void Execute();
    /// Valid until the next step.
    [[nodiscard]] std::string_view Text(int column) const;
    [[nodiscard]] std::int64_t Integer(int column) const;

private:
    void Reset();
    void Bind(int parameter, std::string_view value);
    void Bind(int parameter, std::int64_t value);

    struct Finalize {
        void operator()(sqlite3_stmt* handle) const;
    };
    Database& database_;
    std::unique_ptr<sqlite3_stmt, Finalize> handle_;
};

/// Rolls back unless committed.
class Transaction {
public:
    explicit Transaction(Database& database);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    void Commit();

private:
    Database& database_;
    bool open_ = true;
};

} // namespace gfc::workshop
