#pragma once

#include "figures/SalesOffer.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

namespace vantrell {

/// Which group of a figure, such as an app, each offer of a snapshot belongs to. Worked out once, so that no
/// sum needs a look-up by identifier.
class OfferGroups {
  public:
    static constexpr std::uint32_t none = std::numeric_limits<std::uint32_t>::max();

    /// `groupOf` gives an offer's group as an identifier, or nothing for an offer that is left out.
    template <typename GroupOf>
    OfferGroups(const std::vector<SalesOffer>& offers, GroupOf groupOf) {
        std::vector<std::optional<std::int64_t>> groups;
        groups.reserve(offers.size());
        for (const SalesOffer& offer : offers) {
            groups.push_back(groupOf(offer));
            if (groups.back()) {
                ids_.push_back(*groups.back());
            }
        }
        std::ranges::sort(ids_);
        ids_.erase(std::ranges::unique(ids_).begin(), ids_.end());
        byOffer_.reserve(offers.size());
        for (const auto& group : groups) {
            byOffer_.push_back(group ? number(*group) : none);
        }
    }

    /// The identifiers of the groups in ascending order. A group's number is its place here.
    [[nodiscard]] const std::vector<std::int64_t>& ids() const { return ids_; }
    /// The number of an offer's group, or `none`.
    [[nodiscard]] std::uint32_t ofOffer(OfferID offer) const { return byOffer_[offer]; }
    /// `none` for an identifier that no offer has.
    [[nodiscard]] std::uint32_t number(std::int64_t id) const {
        const auto place = std::ranges::lower_bound(ids_, id);
        return place != ids_.end() && *place == id ? static_cast<std::uint32_t>(place - ids_.begin()) : none;
    }

  private:
    std::vector<std::int64_t> ids_;
    std::vector<std::uint32_t> byOffer_;
};

}  // namespace vantrell
