#pragma once

#include "base/Instant.h"
#include "data/ReportFrequency.h"
#include "data/ReportStatus.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace vantrell {

/// The most that a message takes, since all of them are held in memory. A longer one is cut.
inline constexpr std::size_t mostMessageBytes = std::size_t{16} << 10U;

/// What is stored of an answer that came as a report and is none.
inline constexpr const char* notAReport = "Apple's answer was not a report.";

/// What is known of one sales report, also of one that never gave data.
struct SalesReport {
    std::string accountID = "default";
    std::string frequencyRaw = "DAILY";
    std::string reportDate;  ///< a day key, month key or year label
    std::string statusRaw = "missing";
    std::int64_t rowCount = 0;  ///< rows stored at the last `ok` or `empty`
    std::string message;        ///< what the last attempt left
    Instant fetchedAt = distantPast;

    [[nodiscard]] ReportStatus status() const { return reportStatus(statusRaw); }
    void setStatus(ReportStatus status) { statusRaw = rawText(status); }
    /// `ok`, of a year that still ran when it was asked for: there is more to come.
    [[nodiscard]] bool wasStillRunning() const;
    /// `ok`, with a report that covers its time.
    [[nodiscard]] bool isWhole() const;

    bool operator==(const SalesReport&) const = default;
};

/// What is known of the finance report of one fiscal period.
struct FinanceReport {
    std::string accountID = "default";
    std::string region = "ZZ";
    std::string fiscalPeriod;
    std::string statusRaw = "missing";
    std::int64_t rowCount = 0;
    std::string message;
    Instant fetchedAt = distantPast;
    std::optional<Instant> startDate;  ///< earliest real start date among the rows
    std::optional<Instant> endDate;    ///< latest end date among the rows

    [[nodiscard]] ReportStatus status() const { return reportStatus(statusRaw); }
    void setStatus(ReportStatus status) { statusRaw = rawText(status); }

    bool operator==(const FinanceReport&) const = default;
};

}  // namespace vantrell
