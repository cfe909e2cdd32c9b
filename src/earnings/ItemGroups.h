#pragma once

#include "earnings/SalesChunk.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

namespace vantrell {

/// Which group of a figure, such as an app, each item of a snapshot belongs to. Worked out once, so that a
/// walk over millions of lines needs no look-up by identifier.
class ItemGroups {
  public:
    static constexpr std::uint32_t none = std::numeric_limits<std::uint32_t>::max();

    /// `groupOf` gives an item's group as an identifier, or nothing for an item that is left out.
    template <typename GroupOf>
    ItemGroups(const std::vector<SalesItem>& items, GroupOf groupOf) {
        std::vector<std::optional<std::int64_t>> groups;
        groups.reserve(items.size());
        for (const SalesItem& item : items) {
            groups.push_back(groupOf(item));
            if (groups.back()) {
                ids_.push_back(*groups.back());
            }
        }
        std::ranges::sort(ids_);
        ids_.erase(std::ranges::unique(ids_).begin(), ids_.end());
        byItem_.reserve(items.size());
        for (const auto& group : groups) {
            byItem_.push_back(group ? number(*group) : none);
        }
    }

    /// The identifiers of the groups in ascending order. A group's number is its place here.
    [[nodiscard]] const std::vector<std::int64_t>& ids() const { return ids_; }
    /// The number of an item's group, or `none`.
    [[nodiscard]] std::uint32_t ofItem(std::uint32_t item) const { return byItem_[item]; }
    /// `none` for an identifier that no item has.
    [[nodiscard]] std::uint32_t number(std::int64_t id) const {
        const auto place = std::ranges::lower_bound(ids_, id);
        return place != ids_.end() && *place == id ? static_cast<std::uint32_t>(place - ids_.begin()) : none;
    }

  private:
    std::vector<std::int64_t> ids_;
    std::vector<std::uint32_t> byItem_;
};

}  // namespace vantrell
