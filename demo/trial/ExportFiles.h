#pragma once

#include "figures/EarningsStore.h"

#include <filesystem>
#include <optional>
#include <string>

namespace vantrell {

/// Writes all exports into `folder`, which is made if need be, under their default names and ".csv". Absent
/// on success, else what went wrong with the first one that could not be written; the others are written.
[[nodiscard]] std::optional<std::string> writeExports(const EarningsStore& store,
                                                      const std::filesystem::path& folder);

}  // namespace vantrell
