#pragma once

#include "base/Instant.h"

#include <string>

namespace vantrell {

/// One line of the sync log.
struct SyncLogEntry {
    Instant date = distantPast;
    std::string key;      ///< what it is about, such as "sales daily 2026-08-14"
    std::string outcome;  ///< a status text, "skipped" or "rate-limited"
    std::string message;  ///< at most 500 characters

    bool operator==(const SyncLogEntry&) const = default;
};

}  // namespace vantrell
