#pragma once

#include "data/ModelContext.h"

#include <filesystem>
#include <optional>
#include <string>

namespace vantrell {

/// What became of the lines of a report that were to be kept in a file.
struct LinesFile {
    std::string name;                    ///< beside those that were kept before
    std::optional<std::string> problem;  ///< why there is none, for the user
};

// Write the stored lines of one report into a file of its own in `folder`, as tab-separated text under the
// names of their columns: what to do before nothing comes in their place.

[[nodiscard]] LinesFile keepSalesLines(const ModelContext& context, const std::string& frequencyRaw,
                                       const std::string& reportDate, const std::filesystem::path& folder);
[[nodiscard]] LinesFile keepFinanceLines(const ModelContext& context, const std::string& region,
                                         const std::string& fiscalPeriod,
                                         const std::filesystem::path& folder);

}  // namespace vantrell
