#pragma once

#include "base/Instant.h"
#include "net/HttpClient.h"

#include <optional>

namespace vantrell {

/// What an answer of the service says beside its report.
struct ServiceNotes {
    std::optional<int> requestsLeft;  ///< of this hour and this key
    std::optional<Instant> time;      ///< when it was given, by the service's clock
};

inline constexpr const char* rateLimitHeader = "X-Rate-Limit";
inline constexpr const char* dateHeader = "Date";

/// A header that is not in the usual form counts as absent.
[[nodiscard]] ServiceNotes serviceNotes(const HttpResponse& answer);

}  // namespace vantrell
