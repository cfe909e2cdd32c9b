#pragma once

#include "net/HttpFailure.h"

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <variant>

namespace vantrell {

/// The outcomes of one report request. A `message` is "HTTP 404: " and what the service said, or for an
/// error on our own side its text.
namespace response {

struct Success {
    std::string body;  ///< the report as it was sent, which ReportText reads
    bool operator==(const Success&) const = default;
};

/// Not published yet.
struct NotYetAvailable {
    std::string message;
    bool operator==(const NotYetAvailable&) const = default;
};

struct NoSales {
    std::string message;
    bool operator==(const NoSales&) const = default;
};

/// Past the service's retention.
struct Gone {
    std::string message;
    bool operator==(const Gone&) const = default;
};

/// The report version that was asked for is refused.
struct WrongVersion {
    std::string latest;  ///< the version that the answer names, such as "1_0"
    std::string detail;  ///< a message like the others'
    bool operator==(const WrongVersion&) const = default;
};

/// The key or token was refused, or no token could be made.
struct AuthFailure {
    std::string message;
    /// How far our clock is ahead of the service's, where that may be why.
    std::optional<std::chrono::minutes> clockAhead = {};
    bool operator==(const AuthFailure&) const = default;
};

/// The service asks to slow down.
struct RateLimited {
    std::string message;
    bool operator==(const RateLimited&) const = default;
};

struct Failure {
    std::string message;
    std::optional<HttpFailure> unheard = {};  ///< why there is no answer; absent for one that is an error
    bool operator==(const Failure&) const = default;
};

}  // namespace response

using ReportResponse =
    std::variant<response::Success, response::NotYetAvailable, response::NoSales, response::Gone,
                 response::WrongVersion, response::AuthFailure, response::RateLimited, response::Failure>;

/// The lines below the heading of a body that was received. Throws ReportError.
[[nodiscard]] std::size_t dataLineCount(const std::string& body);

}  // namespace vantrell
