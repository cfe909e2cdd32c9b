#pragma once

#include "figures/AggregateStats.h"
#include "figures/AppFilter.h"
#include "figures/OfferSums.h"
#include "figures/Snapshot.h"

#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace vantrell {

/// Lines of a snapshot, in its order. Nothing is copied.
class SalesSelection {
  public:
    SalesSelection(SharedSnapshot snapshot, std::vector<SalesRows::Span> spans, OfferMask mask)
        : snapshot_(std::move(snapshot)), spans_(std::move(spans)), mask_(std::move(mask)) {}

    /// Calls `visit` with the number of each report's chunk.
    template <typename Visit>
    void forEachReport(Visit visit) const {
        for (const auto& span : spans_) {
            for (std::size_t chunk = span.first; chunk < span.last; ++chunk) {
                visit(chunk);
            }
        }
    }

    /// Calls `visit` with the chunk and the row of each line.
    template <typename Visit>
    void forEach(Visit visit) const {
        forEachReport([&](std::size_t chunk) {
            const SalesChunk& lines = report(chunk);
            for (std::size_t row = 0; row < lines.size(); ++row) {
                if (passes(lines.offers[row])) {
                    visit(lines, row);
                }
            }
        });
    }

    /// Cuts the reports into sections and calls `visit` with the section and a vector of OfferSum, which is
    /// all that was sold and refunded in it. `sectionOf` gives the section of the report with that number of
    /// a chunk, or nothing for one that is left out; a section ends where another one begins.
    template <typename SectionOf, typename Visit>
    void forEachSection(SectionOf sectionOf, Visit visit) const {
        OfferSums sums(snapshot_->salesRows.offers());
        decltype(sectionOf(std::size_t{})) section;
        const auto finishSection = [&] {
            if (section) {
                visit(*section, sums.take(mask_));
            }
        };
        forEachReport([&](std::size_t chunk) {
            if (auto next = sectionOf(chunk); next != section) {
                finishSection();
                section = std::move(next);
            }
            if (section) {
                sums.add(report(chunk));
            }
        });
        finishSection();
    }
    /// As one section.
    [[nodiscard]] std::vector<OfferSum> sums() const;

    /// Whether the report with this number of a chunk is among them; which of its lines pass is another
    /// matter.
    [[nodiscard]] bool containsReport(std::size_t chunk) const;

    [[nodiscard]] std::vector<SalesRowLite> rows() const;
    /// All lines added up.
    [[nodiscard]] AggregateStats aggregate() const;

  private:
    template <typename Visit>
    friend void forEachShared(std::span<const SalesSelection> selections, Visit visit);
    friend std::vector<AggregateStats> aggregates(std::span<const SalesSelection> selections);

    [[nodiscard]] const SalesChunk& report(std::size_t chunk) const {
        return *snapshot_->salesRows.chunks()[chunk];
    }
    [[nodiscard]] bool passes(OfferID offer) const { return !mask_ || (*mask_)[offer]; }

    SharedSnapshot snapshot_;
    std::vector<SalesRows::Span> spans_;
    OfferMask mask_;
};

/// Some of several selections, a bit each.
using SelectionSet = unsigned;

/// Those that the report with this number of a chunk lies in.
[[nodiscard]] SelectionSet selectionsOf(std::size_t chunk, std::span<const SalesSelection> selections);

/// `SalesSelection::forEachSection` for selections of one snapshot that pass the same offers: the sections
/// are the sets of selections that the reports lie in. A line is looked at once, in however many it lies.
template <typename Visit>
void forEachShared(std::span<const SalesSelection> selections, Visit visit) {
    const SalesSelection& any = selections.front();
    SalesSelection(any.snapshot_, {{0, any.snapshot_->salesRows.chunks().size()}}, any.mask_)
        .forEachSection(
            [selections](std::size_t chunk) {
                const SelectionSet containing = selectionsOf(chunk, selections);
                return containing == 0 ? std::nullopt : std::optional(containing);
            },
            visit);
}

/// `SalesSelection::aggregate` of each, for selections as above.
[[nodiscard]] std::vector<AggregateStats> aggregates(std::span<const SalesSelection> selections);

// App Store reports overlap: the same sale stands in a daily, a monthly and a yearly report. No figure ever
// mixes two frequencies for the same stretch of time:
//
//     a range of days, chart days, day table        daily reports in the range
//     windows of tables                             daily reports since their first day
//     a finished month                              its ok monthly report, else its daily reports
//     a year                                        its ok yearly report, unless it still ran when that was
//                                                   given, else its daily reports
//     all time                                      year by year, as above
//     anything                                      never weekly reports

/// Daily rows with a report date from `from` to `to`, both included, each bound only if given.
[[nodiscard]] SalesSelection dailyRows(const SharedSnapshot& snapshot, const std::optional<std::string>& from,
                                       const std::optional<std::string>& to, const AppFilter& apps);
/// Those of the years that don't count by a yearly report.
[[nodiscard]] SalesSelection dailyRowsOfOtherYears(const SharedSnapshot& snapshot, const AppFilter& apps);
[[nodiscard]] SalesSelection allTimeRows(const SharedSnapshot& snapshot, const AppFilter& apps);
/// Rows of one monthly or yearly report.
[[nodiscard]] SalesSelection reportRows(const SharedSnapshot& snapshot, ReportFrequency frequency,
                                        const std::string& reportDate, const AppFilter& apps);

}  // namespace vantrell
