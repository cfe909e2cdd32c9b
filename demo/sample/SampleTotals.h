#pragma once

#include "sample/Money.h"
#include "sample/SampleAccount.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace vantrell::sample {

using MoneyByCurrency = std::map<std::string, Money, std::less<>>;

/// What the program ought to show for a stretch of days, worked out from the sales themselves and never
/// from a report.
struct SalesTotals {
    std::int64_t appUnits = 0;
    std::int64_t inAppUnits = 0;
    std::int64_t updateUnits = 0;
    std::int64_t redownloadUnits = 0;
    std::int64_t refundedUnits = 0;  ///< a positive count
    MoneyByCurrency proceeds;        ///< refunds taken off

    bool operator==(const SalesTotals&) const = default;
};

/// The same for what was paid.
struct PayoutTotals {
    std::int64_t units = 0;
    std::int64_t returns = 0;  ///< a positive count
    MoneyByCurrency paid;

    bool operator==(const PayoutTotals&) const = default;
};

/// Of one app and its products, or of everything. A product whose app is unknown counts for no app.
[[nodiscard]] SalesTotals salesTotals(const SampleAccount& account, const DateRange& range,
                                      std::optional<std::int64_t> appleID = {});
[[nodiscard]] PayoutTotals payoutTotals(const SampleAccount& account, const DateRange& range,
                                        std::optional<std::int64_t> appleID = {});

}  // namespace vantrell::sample
