#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrell {

struct QueryItem {
    std::string name;
    std::string value;
};

/// `origin`, `path` and the query items in their order. Names and values are percent-encoded but for letters,
/// digits and "-._~". Absent unless `origin` is an http or https scheme and host with no path, and `path`
/// begins with a slash.
[[nodiscard]] std::optional<std::string> requestUrl(std::string_view origin, std::string_view path,
                                                    const std::vector<QueryItem>& queryItems);

}  // namespace vantrell
