#pragma once

#include "Sqlite.h"

namespace vantrell {

/// Brings the tables and views of a store from `version` to the present one, in one transaction a version;
/// throws SqliteError, and the store is then whole and of the version that was reached.
void migrate(SqliteDatabase& database, std::int64_t version);

}  // namespace vantrell
