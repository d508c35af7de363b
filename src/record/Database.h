#pragma once

#include "record/Failure.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

// A class per handle of SQLite, so that its header and its result codes stay in one source file.
struct sqlite3;
struct sqlite3_stmt;

namespace gfc::record {

enum class Access { Read, Write };

class Database {
public:
    // Throws Failure where the file cannot be opened so. Write makes a file that is not there.
    Database(std::string file, Access access);

    // Runs statements that give no rows.
    void Run(const std::string& statements);
    // Throws Failure unless the result is a success code.
    void Check(int result) const;
    [[nodiscard]] sqlite3* Handle() const { return handle_.get(); }

private:
    struct Close {
        void operator()(sqlite3* handle) const;
    };
    std::string file_;
    std::unique_ptr<sqlite3, Close> handle_;
};

// Bytes, where a text_view would go in as text.
struct Blob {
    std::string_view Bytes;
};

enum class Kind { Integer, Text, Blob, Other };

// One prepared statement. Parameters count from 1, columns from 0.
class Statement {
public:
    Statement(Database& database, std::string_view sql);

    // Binds every parameter, in order.
    template <typename... Values>
    Statement& With(const Values&... values) {
        Reset();
        int at = 0;
        (Bind(++at, values), ...);
        return *this;
    }
    // False where there is no further row. Throws Failure.
    [[nodiscard]] bool Step();
    // For a statement that gives no row.
    void Execute();
    // The bytes of a text or a blob, valid until the next step.
    [[nodiscard]] std::string_view Bytes(int column) const;
    [[nodiscard]] std::string Text(int column) const { return std::string(Bytes(column)); }
    [[nodiscard]] std::int64_t Integer(int column) const;
    [[nodiscard]] Kind KindOf(int column) const;

private:
    void Reset();
    void Bind(int parameter, std::string_view text);
    void Bind(int parameter, std::int64_t number);
    void Bind(int parameter, Blob blob);

    struct Finalize {
        void operator()(sqlite3_stmt* handle) const;
    };
    Database& database_;
    std::unique_ptr<sqlite3_stmt, Finalize> handle_;
};

// Rolls back unless committed. From its start on no other program writes.
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

} // namespace gfc::record
