#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>

namespace vantrell::sample {

/// One request as the service saw it.
struct ServedRequest {
    std::string target;  ///< path and query as sent
    bool hasAuthorization = false;
    int status = 0;  ///< of the answer
};

/// What the service was asked, oldest first. Of a long run only the newest requests are kept.
class RequestLog {
  public:
    static constexpr std::size_t capacity = 10'000;

    void record(ServedRequest request);
    void clear() { requests_.clear(); }

    [[nodiscard]] const std::deque<ServedRequest>& requests() const { return requests_; }

    /// How many of them begin with `target`.
    [[nodiscard]] std::size_t count(std::string_view target = {}) const;

  private:
    std::deque<ServedRequest> requests_;
};

}  // namespace vantrell::sample
