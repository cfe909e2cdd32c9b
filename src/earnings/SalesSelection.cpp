#include "earnings/SalesSelection.h"

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
    forEach([&](const SalesRowRef& row) { rows.push_back(snapshot_->row(row.chunkNumber, row.index)); });
    return rows;
}

// The walk that all sums are made of: its columns are looked up once and not once a line.
void SalesSelection::addReport(std::size_t chunk, StatsAccumulator& sum) const {
    const SalesChunk& lines = *snapshot_->chunks()[chunk];
    const std::uint32_t* const itemNumbers = lines.items.data();
    const std::uint32_t* const priceNumbers = lines.prices.data();
    const SalesItem* const items = snapshot_->items().data();
    const SalesPrice* const prices = snapshot_->prices().data();
    const std::vector<bool>* const mask = mask_.get();
    const std::size_t size = lines.size();
    for (std::size_t row = 0; row < size; ++row) {
        if (mask == nullptr || (*mask)[itemNumbers[row]]) {
            const SalesPrice& price = prices[priceNumbers[row]];
            sum.add(items[itemNumbers[row]].kind, lines.unitsOf(row), price.proceeds, price.currency);
        }
    }
}

AggregateStats SalesSelection::aggregate() const {
    StatsAccumulator sum;
    forEachReport([&](std::size_t chunk) { addReport(chunk, sum); });
    return sum.stats(snapshot_->currencies());
}

std::vector<AggregateStats> aggregates(const std::vector<SalesSelection>& selections) {
    // By the set of selections that a report lies in: those sets are few, and most reports lie in several.
    std::map<std::vector<bool>, StatsAccumulator> sums;
    const SalesSelection& any = selections.front();
    for (std::size_t chunk = 0; chunk < any.snapshot_->chunks().size(); ++chunk) {
        std::vector<bool> containing(selections.size());
        std::transform(selections.begin(), selections.end(), containing.begin(),
                       [chunk](const SalesSelection& selection) { return selection.containsReport(chunk); });
        StatsAccumulator& sum = sums[containing];
        if (std::ranges::find(containing, true) != containing.end()) {
            any.addReport(chunk, sum);
        }
    }
    std::vector<AggregateStats> stats;
    stats.reserve(selections.size());
    for (std::size_t number = 0; number < selections.size(); ++number) {
        StatsAccumulator total;
        for (const auto& [containing, sum] : sums) {
            if (containing[number]) {
                total.add(sum);
            }
        }
        stats.push_back(total.stats(any.snapshot_->currencies()));
    }
    return stats;
}

}  // namespace vantrell
