#pragma once

#include "Sqlite.h"
#include "data/StoreError.h"

#include <filesystem>
#include <optional>
#include <string>

namespace vantrell {

/// Copies an open store to `file`, in place of what was there, for its owner alone: the copy has been looked
/// through and is on the disk before it takes that name. `vfs` as for the store. Throws SqliteError.
[[nodiscard]] std::optional<StoreError> copyStore(SqliteDatabase& store, const std::filesystem::path& file,
                                                  const std::string& vfs);

}  // namespace vantrell
