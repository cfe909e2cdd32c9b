#pragma once

#include "figures/SalesChunk.h"
#include "figures/SalesOffer.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace vantrell {

/// Lines of one offer that are all sales or all refunds, added up. A figure may take it for one line with all
/// their units: counts and amounts are the same, and so are the signs.
struct OfferSum {
    const SalesOffer* offer;
    OfferID offerNumber;
    std::int64_t units;
};

/// Which offers of a snapshot pass a filter, by their numbers. Absent passes all.
using OfferMask = std::shared_ptr<const std::vector<bool>>;

/// Adds up lines by offer. Lines come by the million and offers by the thousand, so whatever costs more than
/// an addition is done with the sums.
class OfferSums {
  public:
    explicit OfferSums(const std::vector<SalesOffer>& offers)
        : offers_(offers), sums_(2 * offers.size()), used_(sums_.size() + 1) {}

    void add(const SalesChunk& lines);

    /// A sum for each offer that had sales and for each that had refunds, of those that pass; starts anew. It
    /// costs no more than adding the lines did.
    [[nodiscard]] std::vector<OfferSum> take(const OfferMask& mask);

  private:
    const std::vector<SalesOffer>& offers_;
    // By slot: the sales of each offer, then the refunds of each; twice the units, and 1 for being in use.
    std::vector<std::int64_t> sums_;
    std::vector<std::uint32_t> used_;  // the slots in use, and room for one more
    std::size_t usedCount_ = 0;
    std::vector<OfferSum> large_;  // lines whose units might not fit in a sum with others
};

}  // namespace vantrell
