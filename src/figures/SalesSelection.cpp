#include "figures/SalesSelection.h"

#include "figures/StatsAccumulator.h"

#include <algorithm>
#include <map>

namespace vantrell {

bool SalesSelection::containsReport(std::size_t chunk) const {
    return std::ranges::any_of(spans_, [chunk](const SalesSnapshot::Span& span) {
        return span.first <= chunk && chunk < span.last;
    });
}

std::vector<SalesRowLite> SalesSelection::rows() const {
    std::vector<SalesRowLite> rows;
    forEachReport([&](std::size_t chunk) {
        const SalesChunk& lines = *snapshot_->chunks()[chunk];
        for (std::size_t row = 0; row < lines.size(); ++row) {
            if (passes(lines.offers[row])) {
                rows.push_back(snapshot_->row(chunk, row));
            }
        }
    });
    return rows;
}

std::vector<OfferSum> SalesSelection::sums() const {
    OfferSums sums(snapshot_->offers());
    forEachReport([&](std::size_t chunk) { sums.add(*snapshot_->chunks()[chunk]); });
    return sums.take(mask_);
}

AggregateStats SalesSelection::aggregate() const {
    StatsAccumulator total;
    total.add(sums());
    return total.stats(snapshot_->currencies());
}

SelectionSet selectionsOf(std::size_t chunk, std::span<const SalesSelection> selections) {
    SelectionSet containing = 0;
    for (std::size_t number = 0; number < selections.size(); ++number) {
        containing |= selections[number].containsReport(chunk) ? 1U << number : 0U;
    }
    return containing;
}

std::vector<AggregateStats> aggregates(std::span<const SalesSelection> selections) {
    std::map<SelectionSet, StatsAccumulator> sums;
    forEachShared(selections, [&sums](SelectionSet containing, const std::vector<OfferSum>& lines) {
        sums[containing].add(lines);
    });
    std::vector<AggregateStats> stats;
    stats.reserve(selections.size());
    for (std::size_t number = 0; number < selections.size(); ++number) {
        StatsAccumulator total;
        for (const auto& [containing, sum] : sums) {
            if ((containing >> number & 1U) != 0) {
                total.add(sum);
            }
        }
        stats.push_back(total.stats(selections.front().snapshot_->currencies()));
    }
    return stats;
}

}  // namespace vantrell
