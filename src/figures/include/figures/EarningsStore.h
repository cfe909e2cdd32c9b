#pragma once

#include "calendar/ReportCalendar.h"
#include "currency/CurrencyConverter.h"
#include "data/ModelContext.h"
#include "data/ReportStatus.h"
#include "figures/AppFigures.h"
#include "figures/AppFilter.h"
#include "figures/Catalog.h"
#include "figures/DayFigures.h"
#include "figures/FinanceSnapshot.h"
#include "figures/OfferGroups.h"
#include "figures/Payouts.h"
#include "figures/ProductFigures.h"
#include "figures/SalesSelection.h"
#include "figures/SalesSnapshot.h"
#include "figures/Trend.h"
#include "figures/WindowSums.h"
#include "files/Defaults.h"
#include "locale/Locale.h"

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <QObject>

namespace vantrell {

using DailyStatuses = std::map<std::string, ReportStatus, std::less<>>;

/// What every screen reads: all stored lines in memory, and every figure worked out from them when it is
/// asked for. It never writes to the store, and takes in new data only by `reload`.
///
/// App Store reports overlap: the same sale stands in a daily, a monthly and a yearly report. No figure ever
/// mixes two frequencies for the same stretch of time:
///
///     a range of days, chart days, day table        daily reports in the range
///     windows of tables                             daily reports since their first day
///     a finished month                              the monthly report
///     a year with an ok yearly report               the yearly report
///     a later year                                  its daily reports
///     all time                                      all yearly reports, and the daily ones of the years
///                                                   after the newest ok yearly report
///     anything                                      never weekly reports
///
/// Main thread only. Results are fresh values, but for selections, which are valid until the next reload.
class EarningsStore : public QObject {
    Q_OBJECT

  public:
    /// The display currency is the one that was chosen last, else that of the locale, else "USD".
    EarningsStore(Defaults& defaults, const Locale& locale, const ReportCalendar& calendar);

    /// Reads some of what the next reload will need, so that it is quick; false when that was little or
    /// nothing, and the reload can follow. Nothing that is shown changes before it.
    [[nodiscard]] bool readAhead(ModelContext& context) {
        return salesRows_.readAhead(context) || financeRows_.readAhead(context);
    }
    void reload(ModelContext& context);

    [[nodiscard]] const SalesSnapshot& salesRows() const { return salesRows_; }
    [[nodiscard]] const std::vector<FinanceRowLite>& financeRows() const { return financeRows_.rows(); }
    [[nodiscard]] const Catalog& catalog() const { return catalog_; }
    [[nodiscard]] const CurrencyConverter& converter() const { return converter_; }
    [[nodiscard]] const DailyStatuses& dailyStatuses() const { return dailyStatuses_; }
    /// Labels are in ascending order.
    [[nodiscard]] const std::vector<std::string>& yearlyOKLabels() const { return yearlyOKLabels_; }
    [[nodiscard]] const std::vector<std::string>& unavailableYears() const { return unavailableYears_; }
    [[nodiscard]] const std::vector<std::string>& financeOKLabels() const { return financeOKLabels_; }
    /// Raised by each reload and each change of the display currency.
    [[nodiscard]] std::int64_t loadRevision() const { return loadRevision_; }
    /// False until the first reload.
    [[nodiscard]] bool isLoaded() const { return isLoaded_; }

    [[nodiscard]] const AppFilter& appFilter() const { return appFilter_; }
    void setAppFilter(AppFilter filter);
    [[nodiscard]] const std::string& displayCurrency() const { return converter_.displayCurrency; }
    /// Remembered for the next start.
    void setDisplayCurrency(const std::string& code);
    /// What can be chosen, in ascending order: everything that has a rate, and the currency in force.
    [[nodiscard]] std::vector<std::string> availableCurrencies() const;

    [[nodiscard]] const ReportCalendar& calendar() const { return calendar_; }

    /// Daily rows with a report date from `from` to `to`, both included, each bound only if given.
    [[nodiscard]] SalesSelection dailyRows(const std::optional<std::string>& from,
                                           const std::optional<std::string>& to, const AppFilter& apps) const;
    [[nodiscard]] SalesSelection allTimeRows(const AppFilter& apps) const;
    /// Rows of one monthly or yearly report.
    [[nodiscard]] SalesSelection reportRows(ReportFrequency frequency, const std::string& reportDate,
                                            const AppFilter& apps) const;

    /// A point for each day from `from` to `to`, oldest first. Rows without a rate are left out.
    [[nodiscard]] std::vector<DayPoint> dayPoints(const std::string& from, const std::string& to,
                                                  const AppFilter& apps) const;
    /// A row for each day from `from` to `to`, newest first.
    [[nodiscard]] std::vector<DayTableRow> dayTable(const std::string& from, const std::string& to,
                                                    const AppFilter& apps) const;
    /// The current month and the 12 before it, newest first.
    [[nodiscard]] std::vector<PeriodStat> monthStats(const AppFilter& apps) const;
    /// The years that have figures, newest first.
    [[nodiscard]] std::vector<PeriodStat> yearStats(const AppFilter& apps) const;

    /// True when line `left` of a day stands before `right`: what moved money first, then the larger amount
    /// in the display currency.
    [[nodiscard]] bool lineItemOrder(const SalesRowLite& left, const SalesRowLite& right) const;
    /// All lines of a day in that order; equals stay in the order of the report.
    [[nodiscard]] std::vector<SalesRowLite> lineItems(const std::string& day, const AppFilter& apps) const;

    // The lists below put the largest first; equals stay in the order of the catalog (apps), of their
    // identifiers (products) or of their codes (countries).

    /// Every app of the catalog, also those without figures.
    [[nodiscard]] std::vector<AppTableEntry> appTable() const;
    /// The products of each app, its own paid downloads first. Products of no known app are left out.
    [[nodiscard]] ProductWindows productWindows() const;
    /// What each app earned in each year, by the frequencies of all time.
    [[nodiscard]] YearMatrix yearMatrix() const;
    /// The apps and products that were sold or refunded in all time.
    [[nodiscard]] std::vector<ProductStat> productStats(const AppFilter& apps) const;
    /// The countries that brought in most in all time, at most `limit`.
    [[nodiscard]] std::vector<CountryStat> countryStats(const AppFilter& apps, std::size_t limit) const;

    /// The days from `from` to `to` cut into buckets; none if a key is no date or `from` is the later one.
    [[nodiscard]] TrendBuckets trendBuckets(const std::string& from, const std::string& to,
                                            TrendGranularity granularity) const;
    /// The bucket that begins with `start`, for the user.
    [[nodiscard]] std::string bucketLabel(CivilDate start, TrendGranularity granularity) const;
    /// Each bucket's figures with a note on how many of its days were fetched, newest first.
    [[nodiscard]] std::vector<PeriodStat> bucketStats(const std::string& from, const std::string& to,
                                                      TrendGranularity granularity,
                                                      const AppFilter& apps) const;
    /// The apps by what they earned in all time, largest first and equals by identifier. The first eight have
    /// a colour, which thus depends on neither range nor filter.
    [[nodiscard]] std::vector<std::int64_t> rankedApps() const;
    /// Each bucket split by app. Without a filter what belongs to no app with a colour falls under "Other";
    /// with one every app of the filter stands by itself. Lines without a rate are left out.
    [[nodiscard]] Trend trend(const std::string& from, const std::string& to, TrendGranularity granularity,
                              const AppFilter& apps) const;

    /// What was paid, newest fiscal period first.
    [[nodiscard]] std::vector<FinancePeriodStat> financePeriods(const AppFilter& apps) const;
    /// The apps that were ever paid for, in the order of the catalog. Lines of products that no sales report
    /// showed belong to no app.
    [[nodiscard]] std::vector<AppPayout> appPayouts() const;

  Q_SIGNALS:
    void salesRowsChanged();
    void financeRowsChanged();
    void catalogChanged();
    void converterChanged();
    void dailyStatusesChanged();
    void yearlyOKLabelsChanged();
    void unavailableYearsChanged();
    void financeOKLabelsChanged();
    void loadRevisionChanged();
    void isLoadedChanged();
    void appFilterChanged();
    void displayCurrencyChanged();

  private:
    using Signal = void (EarningsStore::*)();
    template <typename Value>
    void publish(Value& field, Value value, Signal changed);

    void reloadRows(ModelContext& context);
    void reloadSalesReports(ModelContext& context);
    void reloadFinanceReports(ModelContext& context);
    void reloadRates(ModelContext& context);
    void raiseLoadRevision();

    /// What the tables show side by side: the last 30 and 365 days and the year to date, each with today, and
    /// all time.
    [[nodiscard]] WindowSelections windowRows() const;
    /// What an all-time list is sorted by.
    [[nodiscard]] double sortValue(const AggregateStats& stats) const;
    /// The apps that sales and refunds belong to.
    [[nodiscard]] OfferGroups ownersOfSold() const;
    /// The greatest label of `yearlyOKLabels`: what a year must be after to count by its daily reports.
    [[nodiscard]] std::string lastYearlyLabel() const;
    /// Whether what belongs to this Apple identifier is of one of the apps.
    [[nodiscard]] bool passes(std::int64_t appleID, const std::set<std::int64_t>& apps) const;
    [[nodiscard]] OfferMask offerMask(const AppFilter& apps) const;
    [[nodiscard]] ReportStatus dailyStatus(const std::string& key) const;
    /// Of the report with this number of a chunk.
    [[nodiscard]] std::optional<std::string_view> reportDate(std::size_t chunk) const {
        return salesRows_.chunks()[chunk]->reportDate;
    }

    Defaults& defaults_;
    const Locale& locale_;
    const ReportCalendar& calendar_;

    SalesSnapshot salesRows_;
    FinanceSnapshot financeRows_;
    Catalog catalog_;
    CurrencyConverter converter_;
    DailyStatuses dailyStatuses_;
    std::vector<std::string> yearlyOKLabels_;
    std::vector<std::string> unavailableYears_;
    std::vector<std::string> financeOKLabels_;
    std::int64_t loadRevision_ = 0;
    bool isLoaded_ = false;
    AppFilter appFilter_;
};

}  // namespace vantrell
