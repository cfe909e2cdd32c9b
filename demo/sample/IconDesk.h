#pragma once

#include "sample/Catalogue.h"

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace vantrell::sample {

/// Where the service has the icon of `app` in so many pixels a side; absent if it has none of that size.
[[nodiscard]] std::optional<std::string> iconPath(const Item& app, int side);

/// Paints the apps' icons when they are first asked for. An icon fills its square: corners are the client's.
class IconDesk {
  public:
    /// `items` must outlive the desk.
    explicit IconDesk(std::span<const Item> items) : items_(items) {}

    /// A PNG; absent if there is nothing at `path`.
    [[nodiscard]] std::optional<std::string> picture(std::string_view path);

  private:
    std::span<const Item> items_;
    std::map<std::string, std::string, std::less<>> painted_;
};

}  // namespace vantrell::sample
