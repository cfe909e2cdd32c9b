#pragma once

#include "base/LocalTime.h"

#include <string_view>

namespace vantrell::testing {

/// A zone by name that stays until the test sets another, as when the user travels.
class FixedLocalTime final : public LocalTime {
  public:
    explicit FixedLocalTime(std::string_view id) : zone_(TimeZone::named(id).value()) {}

    [[nodiscard]] TimeZone zone() const override { return zone_; }
    void setZone(std::string_view id) { zone_ = TimeZone::named(id).value(); }

  private:
    TimeZone zone_;
};

}  // namespace vantrell::testing
