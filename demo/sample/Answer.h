#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vantrell::sample {

/// A request, as far as the service looks at it.
struct Question {
    std::string path;
    std::vector<std::pair<std::string, std::string>> query;  ///< decoded, in the order sent
    std::string authorization;                               ///< the header's value; empty if there is none

    /// The value of the first item of that name; empty if there is none.
    [[nodiscard]] std::string_view item(std::string_view name) const {
        for (const auto& [key, value] : query) {
            if (key == name) {
                return value;
            }
        }
        return {};
    }
};

struct Answer {
    int status = 200;
    std::string contentType;
    std::string body;

    bool operator==(const Answer&) const = default;
};

}  // namespace vantrell::sample
