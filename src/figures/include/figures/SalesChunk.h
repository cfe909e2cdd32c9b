#pragma once

#include "base/Instant.h"
#include "data/OfferDictionary.h"
#include "data/ReportFrequency.h"

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace vantrell {

/// The lines of one stored report in columns of equal length: the store's numbers of offers and of countries,
/// and units. Chunks never change; a report that was replaced is another chunk.
struct SalesChunk {
    ReportFrequency frequency = ReportFrequency::daily;
    std::string reportDate;

    std::vector<OfferID> offers;
    std::vector<TextID> countries;
    std::vector<std::int32_t> units;

    /// Units that don't fit in the column, where it holds `largeUnits`.
    static constexpr std::int32_t largeUnits = INT32_MIN;
    std::unordered_map<std::size_t, std::int64_t> unitsByRow;

    /// The begin date of all lines, or in `dates` that of each if they differ, as they do in months and
    /// years.
    Instant date = distantPast;
    std::vector<Instant> dates;

    [[nodiscard]] std::size_t size() const { return offers.size(); }
    [[nodiscard]] Instant dateOf(std::size_t row) const { return dates.empty() ? date : dates[row]; }
    [[nodiscard]] std::int64_t unitsOf(std::size_t row) const {
        if (units[row] == largeUnits) [[unlikely]] {
            return unitsByRow.at(row);
        }
        return units[row];
    }
};

}  // namespace vantrell
