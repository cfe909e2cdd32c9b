#pragma once

#include "data/StoreError.h"
#include "platform/Sqlite.h"

namespace vantrell {

/// What an `errno` of the system means for the store.
[[nodiscard]] StoreFailure storeFailure(int systemError);
[[nodiscard]] StoreError storeError(const SqliteError& error);
[[nodiscard]] StoreError storeInUse();

}  // namespace vantrell
