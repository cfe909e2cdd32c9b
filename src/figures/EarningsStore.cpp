#include "figures/EarningsStore.h"

#include <algorithm>
#include <utility>

namespace vantrell {
namespace {

constexpr const char* displayCurrencyKey = "displayCurrency";

std::string initialCurrency(const Defaults& defaults, const Locale& locale) {
    if (auto chosen = defaults.text(displayCurrencyKey)) {
        return *std::move(chosen);
    }
    return locale.currencyCode().value_or("USD");
}

}  // namespace

EarningsStore::EarningsStore(Defaults& defaults, const Locale& locale, const ReportCalendar& calendar)
    : defaults_(defaults), locale_(locale), calendar_(calendar) {
    converter_.displayCurrency = initialCurrency(defaults, locale);
}

template <typename Value>
void EarningsStore::publish(Value& field, Value value, Signal changed) {
    if (field == value) {
        return;
    }
    field = std::move(value);
    Q_EMIT(this->*changed)();
}

void EarningsStore::reload(ModelContext& context) {
    reloadRows(context);
    reloadSalesReports(context);
    reloadFinanceReports(context);
    reloadRates(context);
    publish(isLoaded_, true, &EarningsStore::isLoadedChanged);
    raiseLoadRevision();
}

void EarningsStore::reloadRows(ModelContext& context) {
    // Rows get new identities with each load, so any rows at all are other rows than before.
    const std::int64_t load = loadRevision_ + 1;
    const bool hadSales = !salesRows_.empty();
    const bool hadFinance = !financeRows().empty();
    const bool salesChanged = salesRows_.load(context, load);
    financeRows_.load(context, load);
    if (salesChanged) {
        publish(catalog_, Catalog(salesRows_, locale_), &EarningsStore::catalogChanged);
    }
    if (hadSales || !salesRows_.empty()) {
        Q_EMIT salesRowsChanged();
    }
    if (hadFinance || !financeRows().empty()) {
        Q_EMIT financeRowsChanged();
    }
}

void EarningsStore::reloadSalesReports(ModelContext& context) {
    DailyStatuses statuses;
    std::vector<std::string> okYears;
    std::vector<std::string> unavailable;
    for (const auto& [id, report] : context.salesReports().all()) {
        switch (reportFrequency(report.frequencyRaw).value_or(ReportFrequency::daily)) {
            case ReportFrequency::weekly:
            case ReportFrequency::monthly:
                break;
            case ReportFrequency::yearly:
                if (report.status() == ReportStatus::ok) {
                    okYears.push_back(report.reportDate);
                } else if (report.status() == ReportStatus::unavailable) {
                    unavailable.push_back(report.reportDate);
                }
                break;
            case ReportFrequency::daily:
                statuses[report.reportDate] = report.status();
                break;
        }
    }
    std::ranges::sort(okYears);
    std::ranges::sort(unavailable);
    publish(dailyStatuses_, std::move(statuses), &EarningsStore::dailyStatusesChanged);
    publish(yearlyOKLabels_, std::move(okYears), &EarningsStore::yearlyOKLabelsChanged);
    publish(unavailableYears_, std::move(unavailable), &EarningsStore::unavailableYearsChanged);
}

void EarningsStore::reloadFinanceReports(ModelContext& context) {
    std::vector<std::string> labels;
    for (const auto& [id, report] : context.financeReports().all()) {
        if (report.statusRaw == rawText(ReportStatus::ok)) {
            labels.push_back(report.fiscalPeriod);
        }
    }
    std::ranges::sort(labels);
    publish(financeOKLabels_, std::move(labels), &EarningsStore::financeOKLabelsChanged);
}

void EarningsStore::reloadRates(ModelContext& context) {
    const auto& sets = context.rateSets().all();
    if (sets.empty()) {
        return;
    }
    const RateSet& set = sets.begin()->second;
    CurrencyConverter converter = converter_;
    converter.perUSD = set.rates;
    converter.fetchedAt = set.fetchedAt;
    publish(converter_, std::move(converter), &EarningsStore::converterChanged);
}

void EarningsStore::raiseLoadRevision() {
    ++loadRevision_;
    Q_EMIT loadRevisionChanged();
}

void EarningsStore::setAppFilter(AppFilter filter) {
    publish(appFilter_, std::move(filter), &EarningsStore::appFilterChanged);
}

void EarningsStore::setDisplayCurrency(const std::string& code) {
    if (converter_.displayCurrency == code) {
        return;
    }
    defaults_.setText(displayCurrencyKey, code);
    converter_.displayCurrency = code;
    Q_EMIT displayCurrencyChanged();
    Q_EMIT converterChanged();
    raiseLoadRevision();
}

std::vector<std::string> EarningsStore::availableCurrencies() const {
    std::set<std::string> codes{displayCurrency()};
    for (const auto& [code, rate] : converter_.perUSD) {
        codes.insert(code);
    }
    return {codes.begin(), codes.end()};
}

}  // namespace vantrell
