#pragma once

#include "earnings/AggregateStats.h"
#include "earnings/SalesSnapshot.h"
#include "earnings/StatsAccumulator.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace vantrell {

/// One line of a snapshot in place, without copying it.
struct SalesRowRef {
    const SalesSnapshot* snapshot;
    std::size_t chunkNumber;
    std::size_t index;

    [[nodiscard]] const SalesChunk& chunk() const { return *snapshot->chunks()[chunkNumber]; }
    [[nodiscard]] std::uint32_t itemNumber() const { return chunk().items[index]; }
    [[nodiscard]] const SalesItem& item() const { return snapshot->items()[itemNumber()]; }
    [[nodiscard]] const SalesPrice& price() const { return snapshot->prices()[chunk().prices[index]]; }
    [[nodiscard]] std::int64_t units() const { return chunk().unitsOf(index); }
    void addTo(StatsAccumulator& sum) const {
        sum.add(item().kind, units(), price().proceeds, price().currency);
    }
};

/// Which items of a snapshot pass a filter, by their numbers. Absent passes all.
using ItemMask = std::shared_ptr<const std::vector<bool>>;

/// Lines of a snapshot, in its order; valid until the snapshot's next load. Nothing is copied.
class SalesSelection {
  public:
    SalesSelection(const SalesSnapshot& snapshot, std::vector<SalesSnapshot::Span> spans, ItemMask mask)
        : snapshot_(&snapshot), spans_(std::move(spans)), mask_(std::move(mask)) {}

    /// Calls `visit` with a SalesRowRef for each line.
    template <typename Visit>
    void forEach(Visit visit) const {
        forEach([](const SalesChunk&) {}, visit);
    }
    /// Before the lines of each report calls `visitReport` with it.
    template <typename VisitReport, typename Visit>
    void forEach(VisitReport visitReport, Visit visit) const {
        forEachReport([&](std::size_t chunk) {
            const SalesChunk& lines = *snapshot_->chunks()[chunk];
            visitReport(lines);
            for (std::size_t row = 0; row < lines.size(); ++row) {
                if (!mask_ || (*mask_)[lines.items[row]]) {
                    visit(SalesRowRef{snapshot_, chunk, row});
                }
            }
        });
    }

    /// Calls `visit` with the number of each report's chunk.
    template <typename Visit>
    void forEachReport(Visit visit) const {
        for (const auto& span : spans_) {
            for (std::size_t chunk = span.first; chunk < span.last; ++chunk) {
                visit(chunk);
            }
        }
    }

    /// Adds up those lines of one report that pass the filter.
    void addReport(std::size_t chunk, StatsAccumulator& sum) const;

    /// Whether the report with this number of a chunk is among them; which of its lines pass is another
    /// matter.
    [[nodiscard]] bool containsReport(std::size_t chunk) const;

    [[nodiscard]] std::vector<SalesRowLite> rows() const;
    /// All lines added up.
    [[nodiscard]] AggregateStats aggregate() const;

  private:
    friend std::vector<AggregateStats> aggregates(const std::vector<SalesSelection>& selections);

    const SalesSnapshot* snapshot_;
    std::vector<SalesSnapshot::Span> spans_;
    ItemMask mask_;
};

/// `SalesSelection::aggregate` of each, for selections of one snapshot that pass the same items: lines that
/// lie in several of them are walked through once.
[[nodiscard]] std::vector<AggregateStats> aggregates(const std::vector<SalesSelection>& selections);

}  // namespace vantrell
