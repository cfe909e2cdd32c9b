#pragma once

#include "Sqlite.h"

#include <cstdint>
#include <map>
#include <string>

namespace vantrell {

/// What marks a SQLite file as ours, and the version of its tables and views.
inline constexpr std::int64_t storeApplicationID = 0x56616E74;
inline constexpr std::int64_t storeVersion = 2;

/// Creates all tables and views in an empty file, inside the caller's transaction; throws SqliteError.
///
/// Tables hold the data compactly; the views, named after the record types, show every property of every
/// record readably: exact decimal text and ISO dates in UTC.
void createSchema(SqliteDatabase& database);
/// The statements that make the views, by their names.
[[nodiscard]] std::map<std::string, std::string> viewsSQL();
// Inside the caller's transaction as well.
void createViews(SqliteDatabase& database);
void dropViews(SqliteDatabase& database);

}  // namespace vantrell
