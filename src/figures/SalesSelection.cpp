#include "figures/SalesSelection.h"

#include "StatsAccumulator.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <memory>

namespace vantrell {
namespace {

OfferMask offerMask(const Snapshot& snapshot, const AppFilter& apps) {
    if (!apps) {
        return nullptr;
    }
    auto mask = std::make_shared<std::vector<bool>>();
    mask->reserve(snapshot.salesRows.offers().size());
    for (const SalesOffer& offer : snapshot.salesRows.offers()) {
        mask->push_back(snapshot.catalog->isOf(offer.stored.appleID, *apps));
    }
    return mask;
}

}  // namespace

bool SalesSelection::containsReport(std::size_t chunk) const {
    return std::ranges::any_of(
        spans_, [chunk](const SalesRows::Span& span) { return span.first <= chunk && chunk < span.last; });
}

std::vector<SalesRowLite> SalesSelection::rows() const {
    std::vector<SalesRowLite> rows;
    forEachReport([&](std::size_t chunk) {
        const SalesChunk& lines = report(chunk);
        for (std::size_t row = 0; row < lines.size(); ++row) {
            if (passes(lines.offers[row])) {
                rows.push_back(snapshot_->salesRows.row(chunk, row));
            }
        }
    });
    return rows;
}

std::vector<OfferSum> SalesSelection::sums() const {
    OfferSums sums(snapshot_->salesRows.offers());
    forEachReport([&](std::size_t chunk) { sums.add(report(chunk)); });
    return sums.take(mask_);
}

AggregateStats SalesSelection::aggregate() const {
    StatsAccumulator total;
    total.add(sums());
    return total.stats(snapshot_->salesRows.currencies());
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
        stats.push_back(total.stats(selections.front().snapshot_->salesRows.currencies()));
    }
    return stats;
}

SalesSelection dailyRows(const SharedSnapshot& snapshot, const std::optional<std::string>& from,
                         const std::optional<std::string>& to, const AppFilter& apps) {
    return {
        snapshot, {snapshot->salesRows.span(ReportFrequency::daily, from, to)}, offerMask(*snapshot, apps)};
}

SalesSelection dailyRowsOfOtherYears(const SharedSnapshot& snapshot, const AppFilter& apps) {
    return {snapshot, snapshot->salesRows.dailySpansOutside(snapshot->yearlyOKLabels),
            offerMask(*snapshot, apps)};
}

SalesSelection allTimeRows(const SharedSnapshot& snapshot, const AppFilter& apps) {
    const SalesRows& rows = snapshot->salesRows;
    auto spans = rows.dailySpansOutside(snapshot->yearlyOKLabels);
    std::ranges::copy(rows.yearlySpans(snapshot->yearlyOKLabels), std::back_inserter(spans));
    return {snapshot, std::move(spans), offerMask(*snapshot, apps)};
}

SalesSelection reportRows(const SharedSnapshot& snapshot, ReportFrequency frequency,
                          const std::string& reportDate, const AppFilter& apps) {
    return {
        snapshot, {snapshot->salesRows.span(frequency, reportDate, reportDate)}, offerMask(*snapshot, apps)};
}

}  // namespace vantrell
