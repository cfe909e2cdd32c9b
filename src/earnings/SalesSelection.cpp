#include "earnings/SalesSelection.h"

#include <algorithm>

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

AggregateStats SalesSelection::aggregate() const {
    StatsAccumulator sum;
    forEach([&sum](const SalesRowRef& row) { row.addTo(sum); });
    return sum.stats(snapshot_->currencies());
}

}  // namespace vantrell
