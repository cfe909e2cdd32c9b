#include "figures/Exports.h"

#include "base/LowerCase.h"
#include "calendar/DayKey.h"
#include "figures/CSVLine.h"
#include "figures/Days.h"
#include "figures/Payouts.h"
#include "figures/Products.h"

#include <algorithm>
#include <optional>

namespace vantrell {
namespace {

constexpr int exportedDays = 365;

using Fields = std::vector<std::string>;

Fields joined(Fields first, const Fields& rest) {
    first.insert(first.end(), rest.begin(), rest.end());
    return first;
}

/// A file that begins with its headings.
class CSVText {
  public:
    explicit CSVText(const Fields& header) { add(header); }
    void add(const Fields& fields) { text_ += csvLine(fields) + "\n"; }
    [[nodiscard]] std::string take() && { return std::move(text_); }

  private:
    std::string text_;
};

// A blank code is a word like any other.
std::string withSpaces(const Fields& words) {
    std::string text;
    for (std::size_t index = 0; index < words.size(); ++index) {
        text += (index == 0 ? "" : " ") + words[index];
    }
    return text;
}

// The three columns in which each export tells money. `what` says which money it is.
Fields moneyHeader(const CurrencyConverter& converter, const std::string& what) {
    return {what + "_" + lowerCase(converter.displayCurrency), "currencies_without_rate",
            what + "_by_currency"};
}

Fields moneyFields(const CurrencyConverter& converter, const AmountsByCurrency& amounts) {
    const ConvertedTotal total = converter.total(amounts);
    return {total.amount.text(), withSpaces(total.withoutRate), breakdownText(amounts)};
}

}  // namespace

std::string sourceText(const PeriodStat& period) {
    switch (period.source) {
        case PeriodSource::dailyReports:
            return "From daily reports";
        case PeriodSource::someDailyReports:
            return "From daily reports · " + std::to_string(period.fetchedDays) + " of " +
                   std::to_string(period.days) + " days";
        case PeriodSource::monthToDate:
            return "From daily reports · MTD";
        case PeriodSource::yearToDate:
            return "From daily reports · YTD";
        case PeriodSource::monthlyReport:
        case PeriodSource::disputedMonthlyReport:
            return "Monthly report";
        case PeriodSource::yearlyReport:
            return "Yearly report";
    }
    return {};
}

std::string formText(const ProductStat& product) {
    const std::string ofApp = product.appTitle ? *product.appTitle + " · " : "";
    switch (product.form) {
        case ProductForm::unknown:
            return {};
        case ProductForm::app:
            return "App";
        case ProductForm::inAppPurchase:
            return ofApp + "In-app purchase";
        case ProductForm::subscription:
            return ofApp + "Subscription";
    }
    return {};
}

std::string_view exportFileName(ExportKind kind) {
    switch (kind) {
        case ExportKind::days:
            return "vantrell-daily";
        case ExportKind::months:
            return "vantrell-months";
        case ExportKind::years:
            return "vantrell-years";
        case ExportKind::payouts:
            return "vantrell-payouts";
        case ExportKind::products:
            return "vantrell-products";
    }
    return {};
}

std::string exportText(const EarningsStore& store, ExportKind kind) {
    switch (kind) {
        case ExportKind::days:
            return exportDays(store, exportedDays);
        case ExportKind::months:
            return exportPeriods(store, monthStats(store.snapshot(), store.calendar(), {}));
        case ExportKind::years:
            return exportPeriods(store, yearStats(store.snapshot(), store.calendar(), {}));
        case ExportKind::payouts:
            return exportPayouts(store);
        case ExportKind::products:
            return exportProducts(store);
    }
    return {};
}

std::string exportDays(const EarningsStore& store, int days) {
    const CurrencyConverter& converter = store.converter();
    CSVText text(joined({"date", "report_status"}, statsHeader(converter)));
    const std::string from = store.calendar().dayKey(std::max(days, 1));
    for (const DayTableRow& day : dayTable(store.snapshot(), from, store.calendar().dayKey(1), {})) {
        text.add(joined({day.key, std::string(rawText(day.status))}, statsFields(converter, day.stats)));
    }
    return std::move(text).take();
}

std::string exportPeriods(const EarningsStore& store, const std::vector<PeriodStat>& periods) {
    const CurrencyConverter& converter = store.converter();
    CSVText text(joined({"period", "source"}, statsHeader(converter)));
    for (const PeriodStat& period : periods) {
        text.add(joined({period.label, sourceText(period)}, statsFields(converter, period.stats)));
    }
    return std::move(text).take();
}

std::string exportPayouts(const EarningsStore& store) {
    const CurrencyConverter& converter = store.converter();
    const auto key = [&store](const std::optional<Instant>& date) {
        return date ? dayKey(store.calendar().dateAt(*date)) : std::string();
    };
    CSVText text(joined({"fiscal_period", "start_date", "end_date", "units", "returns"},
                        moneyHeader(converter, "paid")));
    for (const FinancePeriodStat& period : financePeriods(*store.snapshot(), {})) {
        text.add(joined({period.label, key(period.start), key(period.end), std::to_string(period.units),
                         std::to_string(period.returns)},
                        moneyFields(converter, period.byCurrency)));
    }
    return std::move(text).take();
}

std::string exportProducts(const EarningsStore& store) {
    const CurrencyConverter& converter = store.converter();
    CSVText text(joined({"title", "kind", "apple_identifier"}, statsHeader(converter)));
    for (const ProductStat& product : productStats(store.snapshot(), converter, {})) {
        text.add(joined({product.title, formText(product), std::to_string(product.productID)},
                        statsFields(converter, product.stats)));
    }
    return std::move(text).take();
}

std::vector<std::string> statsHeader(const CurrencyConverter& converter) {
    return joined({"app_units", "iap_units", "update_units", "redownload_units", "refunded_units"},
                  moneyHeader(converter, "proceeds"));
}

std::vector<std::string> statsFields(const CurrencyConverter& converter, const AggregateStats& stats) {
    return joined(
        {std::to_string(stats.appUnits), std::to_string(stats.iapUnits), std::to_string(stats.updateUnits),
         std::to_string(stats.redownloadUnits), std::to_string(stats.refundedUnits)},
        moneyFields(converter, stats.proceedsByCurrency));
}

}  // namespace vantrell
