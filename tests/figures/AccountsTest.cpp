#include "figures/Apps.h"
#include "figures/Days.h"
#include "figures/Exports.h"
#include "figures/Payouts.h"
#include "figures/Products.h"
#include "figures/SalesSelection.h"
#include "figures/Trends.h"
#include "testing/AccountFile.h"
#include "testing/Golden.h"

#include <iomanip>
#include <sstream>

#include <gtest/gtest.h>

// Each account under data/accounts stands beside all that an EarningsStore says of it.

namespace vantrell {
namespace {

using testing::AccountFile;
using testing::EarningsFixture;
using testing::money;

std::string text(const AggregateStats& stats) {
    const std::pair<std::int64_t, const char*> units[] = {{stats.appUnits, "app"},
                                                          {stats.iapUnits, "in-app"},
                                                          {stats.updateUnits, "updates"},
                                                          {stats.redownloadUnits, "redownloads"},
                                                          {stats.refundedUnits, "refunded"}};
    std::string text = money(stats);
    for (const auto& [count, name] : units) {
        text += count == 0 ? "" : (text.empty() ? "" : ", ") + std::to_string(count) + " " + name;
    }
    return text;
}

std::string key(const std::optional<Instant>& date) {
    return date ? dayKey(std::chrono::floor<std::chrono::days>(*date)) : "none";
}

std::string rounded(double amount) {
    std::ostringstream text;
    text << std::setprecision(9) << amount;
    return text.str();
}

/// A line for each entry under a heading, and nothing for an empty list.
template <typename List, typename Describe>
std::string listed(const std::string& heading, const List& list, Describe describe) {
    std::string text;
    for (const auto& entry : list) {
        text += "  " + describe(entry) + "\n";
    }
    return text.empty() ? "" : heading + "\n" + text;
}

template <typename Entry>
std::string windows(const Entry& entry) {
    return ": " + text(entry.last30) + " | " + text(entry.last365) + " | " + text(entry.ytd) + " | " +
           text(entry.allTime);
}

std::string period(const PeriodStat& stat) {
    return stat.label + " (" +
           (stat.days == 0 || stat.source == PeriodSource::someDailyReports
                ? sourceText(stat)
                : std::to_string(stat.fetchedDays) + " of " + std::to_string(stat.days) + " days fetched") +
           "): " + text(stat.stats);
}

std::string wholeAccount(const EarningsStore& store) {
    const SharedSnapshot& snapshot = store.snapshot();
    const CurrencyConverter& rates = store.converter();
    const Catalog& catalog = *snapshot->catalog;
    std::string all = listed("apps", catalog.apps(),
                             [](const AppInfo& app) { return std::to_string(app.id) + " " + app.title; });
    all += listed("products", catalog.products(), [](const ProductInfo& product) {
        return std::to_string(product.id) + " " + product.title + " of " +
               (product.appID ? std::to_string(*product.appID) : "none") +
               (product.isSubscription ? ", subscription" : "");
    });
    all += listed("30 days | 365 days | year to date | all time", appTable(snapshot, rates, store.calendar()),
                  [](const auto& entry) {
                      return std::to_string(entry.app.id) + windows(entry) + " = " + rounded(entry.sortValue);
                  });
    for (const auto& [app, products] : productWindows(snapshot, rates, store.calendar())) {
        all += listed("products of " + std::to_string(app), products, [](const ProductWindowStat& product) {
            return std::to_string(product.productID) +
                   (product.isAppPurchases ? " the app" : " " + product.title) + windows(product);
        });
    }
    const YearMatrix matrix = yearMatrix(snapshot, rates);
    all += listed("years that are worth something", matrix.years, [](const auto& year) { return year; });
    all += listed("app by year", matrix.byApp, [](const auto& app) {
        std::string row = std::to_string(app.first) + ":";
        for (const auto& [year, amount] : app.second) {
            row += " " + year + " " + rounded(amount);
        }
        return row;
    });
    all +=
        listed("ranked", rankedApps(snapshot, rates), [](std::int64_t app) { return std::to_string(app); });
    return all + listed("paid this fiscal year of all time", appPayouts(*snapshot, store.calendar()),
                        [](const AppPayout& payout) {
                            return payout.app.title + ": " + money(payout.currentFiscalYear) + " of " +
                                   money(payout.allTime);
                        });
}

std::string trend(const Trend& trend) {
    std::string all;
    for (const TrendLegendItem& item : trend.legend) {
        all += " " + (item.appID ? item.title : "others") +
               (item.colorIndex ? " #" + std::to_string(*item.colorIndex) : "") + ",";
    }
    return listed("trend of" + all, trend.points, [](const TrendPoint& point) {
        std::string row = dayKey(point.periodStart) + " " + std::string(rawText(point.status)) + ":";
        for (const TrendSlice& slice : point.slices) {
            row += " " + (slice.appID ? slice.title : "others") + " " + rounded(slice.proceeds) + " " +
                   rounded(slice.refunds) + ";";
        }
        return row;
    });
}

std::string ofApps(EarningsFixture& fixture, const AccountFile& account, const AppFilter& apps) {
    const SharedSnapshot& snapshot = fixture.store().snapshot();
    const CurrencyConverter& rates = fixture.store().converter();
    const ReportCalendar& calendar = fixture.store().calendar();
    constexpr std::size_t mostCountries = 6;
    const std::string& from = account.firstDay;
    const std::string& to = account.lastDay;
    std::string all = "all time\n  " + text(allTimeRows(snapshot, apps).aggregate()) + "\n";
    auto months = monthStats(snapshot, calendar, apps);
    EXPECT_EQ(months.size(), 13U);
    std::erase_if(months, [](const PeriodStat& month) { return month.stats.isEmpty(); });
    all += listed("months", months, period);
    all += listed("years", yearStats(snapshot, calendar, apps), period);
    all += listed("sold", productStats(snapshot, rates, apps), [](const ProductStat& product) {
        return product.title + " / " + formText(product) + ": " + text(product.stats);
    });
    all += listed("countries", countryStats(snapshot, rates, apps, mostCountries),
                  [](const CountryStat& country) { return country.country + " " + country.amount.text(); });
    all += listed("paid", financePeriods(*snapshot, apps), [](const FinancePeriodStat& paid) {
        return paid.label + ", " + key(paid.start) + " to " + key(paid.end) + ", " +
               std::to_string(paid.units) + " units, " + std::to_string(paid.returns) +
               " returns: " + money(paid.byCurrency);
    });
    all += listed("days", dayTable(snapshot, from, to, apps), [](const DayTableRow& day) {
        return day.key + " " + std::string(rawText(day.status)) + ": " + text(day.stats);
    });
    all += listed("chart", dayPoints(snapshot, rates, from, to, apps), [](const DayPoint& day) {
        return dayKey(day.day) + " " + std::string(rawText(day.status)) + ": " + rounded(day.proceeds) + " " +
               rounded(day.refunds);
    });
    all +=
        listed("lines of the last day", lineItems(snapshot, rates, to, apps), [](const SalesRowLite& line) {
            return std::string(line.title) + " " + line.amount().text() + " " + std::string(line.currency);
        });
    for (const auto granularity : {TrendGranularity::day, TrendGranularity::week, TrendGranularity::month}) {
        all += listed("buckets", bucketStats(snapshot, fixture.locale, from, to, granularity, apps), period);
        all += trend(vantrell::trend(snapshot, rates, fixture.locale, from, to, granularity, apps));
    }
    return all;
}

TEST(Accounts, AreToldAsInTheFilesBesideThem) {
    const auto files = testing::filesIn(std::filesystem::path(VANTRELL_TEST_DATA) / "accounts", ".account");
    EXPECT_FALSE(files.empty());
    for (std::filesystem::path file : files) {
        SCOPED_TRACE(file);
        EarningsFixture fixture;
        const AccountFile account(file);
        account.storeIn(fixture);
        const EarningsStore& store = fixture.reload();
        testing::expectMatchesFile(wholeAccount(store) + "\nWITHOUT A FILTER\n" +
                                       ofApps(fixture, account, {}) + "\nOF THE CHOSEN APPS\n" +
                                       ofApps(fixture, account, account.apps) + "\nOF NO APP\n" +
                                       ofApps(fixture, account, std::set<std::int64_t>{}),
                                   file.replace_extension(".figures"));
    }
}

}  // namespace
}  // namespace vantrell
