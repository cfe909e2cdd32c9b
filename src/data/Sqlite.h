#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

#include <sqlite3.h>

namespace vantrell {

/// What SQLite answered when something failed: its result code, its own words, and the `errno` of the
/// system's call that failed, 0 where it was none.
class SqliteError : public std::runtime_error {
  public:
    SqliteError(int code, const std::string& description, int systemError = 0);
    [[nodiscard]] int code() const { return code_; }
    [[nodiscard]] int systemError() const { return systemError_; }

  private:
    int code_;
    int systemError_;
};

/// One prepared statement. Parameters and columns count from 0.
class SqliteStatement {
  public:
    void bind(int index, std::int64_t value) {
        checkBound(sqlite3_bind_int64(statement_.get(), index + 1, value));
    }
    /// The bytes must stay where they are until the statement is reset.
    void bind(int index, std::string_view text);
    void bindNull(int index);

    /// True while there is a row to read. Throws SqliteError.
    [[nodiscard]] bool step();
    /// For statements without rows: steps once and resets, so that the next values can be bound.
    void run();
    void reset();

    [[nodiscard]] std::int64_t integer(int column) const {
        return sqlite3_column_int64(statement_.get(), column);
    }
    /// Valid until the next step or reset.
    [[nodiscard]] std::string_view text(int column) const;
    [[nodiscard]] bool isNull(int column) const;
    [[nodiscard]] bool isText(int column) const;

  private:
    friend class SqliteDatabase;
    struct Finalizer {
        void operator()(sqlite3_stmt* statement) const;
    };
    explicit SqliteStatement(sqlite3_stmt* statement) : statement_(statement) {}
    void checkBound(int result) const {
        if (result != SQLITE_OK) {
            failed(result);
        }
    }
    [[noreturn]] void failed(int result) const;

    std::unique_ptr<sqlite3_stmt, Finalizer> statement_;
};

/// One connection to one SQLite file. Every operation throws SqliteError when it fails.
class SqliteDatabase {
  public:
    enum class Mode {
        readWrite,  ///< creates the file if there is none
        peek,       ///< reads what is there without locks and without recovery: never changes a byte. Closing
                    ///< it lets go of every lock that this process has on the file
    };

    /// `vfs` names one of SQLite's file layers; empty means the default.
    SqliteDatabase(const std::string& path, Mode mode, const std::string& vfs = {});

    void execute(const std::string& sql);
    [[nodiscard]] SqliteStatement prepare(std::string_view sql);
    /// One statement without rows, with one parameter.
    void run(std::string_view sql, std::int64_t parameter);
    /// The first column of the first row as an integer; 0 without a row.
    [[nodiscard]] std::int64_t integer(std::string_view sql);
    /// Becomes a copy of the other, page by page.
    void takeOver(SqliteDatabase& other);
    [[nodiscard]] bool inTransaction() const;
    /// True where the file can be read but not written.
    [[nodiscard]] bool isReadOnly() const;
    [[nodiscard]] std::string path() const;

  private:
    struct Closer {
        void operator()(sqlite3* database) const;
    };
    std::unique_ptr<sqlite3, Closer> database_;
};

/// What SQLite finds wrong with how pages and tables fit together; absent when nothing is.
[[nodiscard]] std::optional<std::string> quickCheck(SqliteDatabase& database);

/// A transaction that is rolled back unless it was committed.
class SqliteTransaction {
  public:
    explicit SqliteTransaction(SqliteDatabase& database);
    ~SqliteTransaction();
    SqliteTransaction(const SqliteTransaction&) = delete;
    SqliteTransaction& operator=(const SqliteTransaction&) = delete;

    void commit();

  private:
    SqliteDatabase& database_;
    bool open_ = true;
};

}  // namespace vantrell
