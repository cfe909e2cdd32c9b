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
    [[nodiscard]] Decimal amount() const { return Decimal(units()) * price().proceeds.value(); }
    [[nodiscard]] std::string_view currency() const { return snapshot->currencies().text(price().currency); }
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
        for (const auto& span : spans_) {
            for (std::size_t chunk = span.first; chunk < span.last; ++chunk) {
                const SalesChunk& lines = *snapshot_->chunks()[chunk];
                visitReport(lines);
                for (std::size_t row = 0; row < lines.size(); ++row) {
                    if (!mask_ || (*mask_)[lines.items[row]]) {
                        visit(SalesRowRef{snapshot_, chunk, row});
                    }
                }
            }
        }
    }

    /// Whether the report with this number of a chunk is among them; which of its lines pass is another
    /// matter.
    [[nodiscard]] bool containsReport(std::size_t chunk) const;

    [[nodiscard]] std::vector<SalesRowLite> rows() const;
    /// All lines added up.
    [[nodiscard]] AggregateStats aggregate() const;

  private:
    const SalesSnapshot* snapshot_;
    std::vector<SalesSnapshot::Span> spans_;
    ItemMask mask_;
};

}  // namespace vantrell
