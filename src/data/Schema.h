#pragma once

#include "data/Sqlite.h"

#include <cstdint>

namespace vantrell {

/// What marks a SQLite file as ours, and the version of its tables and views.
inline constexpr std::int64_t storeApplicationID = 0x56616E74;
inline constexpr std::int64_t storeVersion = 2;

/// Creates all tables and views in an empty file, inside the caller's transaction; throws SqliteError.
///
/// Tables hold the data compactly; the views, named after the record types, show every property of every
/// record readably: exact decimal text and ISO dates in UTC.
void createSchema(SqliteDatabase& database);
// The views alone; likewise.
void createViews(SqliteDatabase& database);
void dropViews(SqliteDatabase& database);

}  // namespace vantrell
