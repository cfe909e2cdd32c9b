#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>

struct sqlite3;
struct sqlite3_stmt;

namespace vantrell::bench {

struct CloseDatabase {
    void operator()(sqlite3* database) const;
};
struct FinalizeStatement {
    void operator()(sqlite3_stmt* statement) const;
};
using PlainDatabase = std::unique_ptr<sqlite3, CloseDatabase>;
using PlainStatement = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

// What the floors stand on: SQLite's C interface with no layer in between. They throw std::runtime_error.

/// With the journal and the durability of the program's own store.
[[nodiscard]] PlainDatabase openPlain(const std::filesystem::path& file);
void execute(sqlite3* database, const char* sql);
[[nodiscard]] PlainStatement prepare(sqlite3* database, const char* sql);

/// What shows that a floor did the same work.
struct TableSum {
    std::int64_t rows = 0;
    std::int64_t units = 0;
    bool operator==(const TableSum&) const = default;
};

}  // namespace vantrell::bench
