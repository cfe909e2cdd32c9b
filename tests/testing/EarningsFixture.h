#pragma once

#include "calendar/DayKey.h"
#include "figures/AggregateStats.h"
#include "figures/EarningsStore.h"
#include "testing/FixedLocalTime.h"
#include "testing/ManualClock.h"
#include "testing/MemoryDefaults.h"
#include "testing/StoreFixture.h"

#include <memory>
#include <string>
#include <vector>

namespace vantrell::testing {

/// A stored line in short. The begin date is that of a daily report, else the first day of the report.
struct Line {
    std::int64_t appleID = 1;
    std::string productType = "1F";
    std::int64_t units = 1;
    std::string proceeds = "1";
    std::string currency = "USD";
    std::string title;
    std::string sku = "app";
    std::string parentSKU;
    std::string country = "US";
};

/// A stored finance line in short, with dates as day keys and "" for none.
struct Payment {
    std::int64_t appleID = 1;
    std::int64_t quantity = 1;
    std::string share = "1";  ///< of the whole line
    std::string currency = "USD";
    std::string saleOrReturn = "S";
    std::string start;
    std::string end;
};

/// Writes reports down in short.
class ShortReports {
  public:
    [[nodiscard]] virtual ModelContext& context() = 0;

    /// Puts a report with these lines and status ok into the store, in place of what was there.
    void report(ReportFrequency frequency, const std::string& date, const std::vector<Line>& lines,
                ReportStatus status = ReportStatus::ok, const std::string& fetched = {});
    void parsedReport(ReportFrequency frequency, const std::string& date,
                      const std::vector<SalesRowView>& rows, ReportStatus status = ReportStatus::ok,
                      Instant fetched = distantPast);
    void daily(const std::string& date, const std::vector<Line>& lines) {
        report(ReportFrequency::daily, date, lines);
    }
    /// Likewise a finance report.
    void payments(const std::string& fiscalPeriod, const std::vector<Payment>& lines,
                  ReportStatus status = ReportStatus::ok);
    void parsedPayments(const std::string& fiscalPeriod, const std::vector<ParsedFinanceRow>& rows,
                        ReportStatus status = ReportStatus::ok);
    void rates(const Rates& rates);

  protected:
    ~ShortReports() = default;
};

/// An EarningsStore over a real store, on 22 November 2026 at noon UTC in Berlin, in US dollars.
class EarningsFixture final : public ShortReports {
  public:
    explicit EarningsFixture(const std::string& vfs = {});
    /// Over a copy of a store that is kept.
    explicit EarningsFixture(const std::filesystem::path& kept);

    EarningsStore& store() { return *earnings_; }
    ModelContext& context() override { return *context_; }
    [[nodiscard]] std::filesystem::path file() const { return file_.file(); }

    /// Saves and reloads.
    EarningsStore& reload();
    /// A second EarningsStore that has read nothing yet.
    [[nodiscard]] std::unique_ptr<EarningsStore> another();

    ManualClock clock;
    FixedLocalTime localTime{"Europe/Berlin"};
    MemoryDefaults defaults;
    const Locale locale{LocaleNames{"en_US.UTF-8", "C", "C", "C", "C"}};

  private:
    StoreFixture file_;
    ModelContext* context_;
    ReportCalendar calendar_{clock, localTime};
    std::unique_ptr<EarningsStore> earnings_;
};

/// Amounts of a figure as "EUR 1.5, USD -2", and "" for none.
[[nodiscard]] std::string money(const AmountsByCurrency& amounts);
[[nodiscard]] inline std::string money(const AggregateStats& stats) {
    return money(stats.proceedsByCurrency);
}

}  // namespace vantrell::testing
