#pragma once

#include "data/StoreError.h"

#include <filesystem>
#include <optional>

namespace vantrell {

/// Makes the store's file, empty (0600), and its folder (0700) where there is none, and otherwise looks at
/// the file without changing it: an error where it is another application's, a newer version's, no database,
/// no regular file, or in use by another process. What a crash has left is no error: SQLite mends it.
///
/// To be called before this process has opened the store, whose locks it would let go.
[[nodiscard]] std::optional<StoreError> prepareStoreFile(const std::filesystem::path& file);

/// Makes an empty file (0600), and its folder (0700) where there is none. A file that is there stays.
[[nodiscard]] std::optional<StoreError> makeFile(const std::filesystem::path& file);

/// Gives a file that is on the disk the name of another in the same folder, for good.
[[nodiscard]] std::optional<StoreError> putInPlace(const std::filesystem::path& from,
                                                   const std::filesystem::path& to);

/// Another process has a lock on the store.
[[nodiscard]] bool isHeldElsewhere(const std::filesystem::path& file);

}  // namespace vantrell
