#pragma once

#include "data/ReportName.h"

#include <optional>
#include <string>

namespace vantrell {

/// What kept the store from being opened, read or written.
enum class StoreFailure {
    diskFull,
    readOnly,     ///< file, folder or disk can be read but not written
    inputOutput,  ///< the disk answered with an error
    damaged,      ///< what the file holds isn't what was stored
    inUse,        ///< another process has it open
    rejected,     ///< one value can't be stored; all others can
    other,
};

struct StoreError {
    std::string description;  ///< in words for the user
    StoreFailure kind = StoreFailure::other;
    std::optional<ReportName> report;  ///< the one whose lines were rejected
    bool operator==(const StoreError&) const = default;
};

}  // namespace vantrell
