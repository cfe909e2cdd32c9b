#pragma once

#include "data/LineTable.h"
#include "data/ReportFrequency.h"
#include "earnings/ExactSum.h"
#include "earnings/ProductKind.h"
#include "platform/Decimal.h"
#include "platform/Instant.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace vantrell {

/// What the lines about one product share. A product that was renamed has an item for each of its titles.
struct SalesItem {
    std::int64_t appleID = 0;
    std::string_view sku;
    std::string_view parentSKU;
    std::string_view title;
    std::string_view productType;
    ProductKind kind = ProductKind::other;
};

/// What the lines at one price share.
struct SalesPrice {
    ScaledPrice proceeds;        ///< per unit
    std::uint32_t currency = 0;  ///< of the proceeds, as a number of the snapshot's currencies
    Decimal customerPrice;
    std::string_view customerCurrency;
};

/// The lines of one stored report in columns of equal length: numbers of items, of prices and of countries,
/// and units. Chunks never change; a report that was replaced is another chunk.
struct SalesChunk {
    BatchID batch = 0;
    ReportFrequency frequency = ReportFrequency::daily;
    std::string reportDate;

    std::vector<std::uint32_t> items;
    std::vector<std::uint32_t> prices;
    std::vector<std::uint32_t> countries;
    std::vector<std::int32_t> units;

    /// Units that don't fit in the column, where it holds `largeUnits`.
    static constexpr std::int32_t largeUnits = INT32_MIN;
    std::unordered_map<std::size_t, std::int64_t> unitsByRow;

    /// The begin date of all lines, or in `dates` that of each if they differ, as they do in months and
    /// years.
    Instant date = distantPast;
    std::vector<Instant> dates;

    [[nodiscard]] std::size_t size() const { return items.size(); }
    [[nodiscard]] Instant dateOf(std::size_t row) const { return dates.empty() ? date : dates[row]; }
    [[nodiscard]] std::int64_t unitsOf(std::size_t row) const {
        if (units[row] == largeUnits) [[unlikely]] {
            return unitsByRow.at(row);
        }
        return units[row];
    }
};

}  // namespace vantrell
