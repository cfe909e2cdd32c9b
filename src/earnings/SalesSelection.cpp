#include "earnings/SalesSelection.h"

namespace vantrell {

std::vector<SalesRowLite> SalesSelection::rows() const {
    std::vector<SalesRowLite> rows;
    forEach([&](const SalesRowRef& row) { rows.push_back(snapshot_->row(row.chunkNumber, row.index)); });
    return rows;
}

AggregateStats SalesSelection::aggregate() const {
    StatsAccumulator sum;
    forEach([&sum](const SalesRowRef& row) { row.addTo(sum); });
    return sum.stats(snapshot_->texts());
}

}  // namespace vantrell
