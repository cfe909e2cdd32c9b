#pragma once

#include "data/RatesText.h"
#include "net/HttpClient.h"

#include <stop_token>
#include <string>
#include <string_view>
#include <variant>

#include <qcoro/qcorotask.h>

namespace vantrell {

/// Why no rates came, in words for the user.
struct RatesError {
    std::string description;
    bool operator==(const RatesError&) const = default;
};

using RatesAnswer = std::variant<Rates, RatesError>;

/// Asks a public exchange-rate service for the rates against the US dollar. It needs no key.
namespace RatesFetcher {

/// `origin` is a scheme and a host with no path; `http` must outlive the task. Only the body decides, not the
/// HTTP status.
[[nodiscard]] QCoro::Task<RatesAnswer> fetch(HttpClient& http, std::string origin, std::stop_token cancel);

/// Rates come only of a body that says "success" and holds at least one; all of them must be numbers.
[[nodiscard]] RatesAnswer parse(std::string_view body);

}  // namespace RatesFetcher

}  // namespace vantrell
