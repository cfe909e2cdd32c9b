#pragma once

#include "Sqlite.h"
#include "data/StoreError.h"

namespace vantrell {

/// What an `errno` of the system means for the store.
[[nodiscard]] StoreFailure storeFailure(int systemError);
[[nodiscard]] StoreError storeError(const SqliteError& error);
[[nodiscard]] StoreError storeInUse();
[[nodiscard]] StoreError damagedStore();

}  // namespace vantrell
