#include "figures/EarningsStore.h"

#include <set>
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
    : defaults_(defaults), calendar_(calendar), loader_(locale) {
    converter_.displayCurrency = initialCurrency(defaults, locale);
}

void EarningsStore::reload(const ModelContext& context) {
    const SharedSnapshot before = std::exchange(snapshot_, loader_.load(context, *snapshot_));
    if (const auto& sets = context.rateSets().all(); !sets.empty()) {
        const RateSet& set = sets.begin()->second;
        converter_.perUSD = set.rates;
        converter_.fetchedAt = set.fetchedAt;
    }
    if (snapshot_->catalog != before->catalog && *snapshot_->catalog != *before->catalog) {
        Q_EMIT catalogChanged();
    }
    if (!std::exchange(isLoaded_, true)) {
        Q_EMIT isLoadedChanged();
    }
    raiseLoadRevision();
}

void EarningsStore::raiseLoadRevision() {
    ++loadRevision_;
    Q_EMIT loadRevisionChanged();
}

void EarningsStore::setAppFilter(AppFilter filter) {
    if (appFilter_ != filter) {
        appFilter_ = std::move(filter);
        Q_EMIT appFilterChanged();
    }
}

void EarningsStore::setDisplayCurrency(const std::string& code) {
    if (displayCurrency() == code) {
        return;
    }
    defaults_.setText(displayCurrencyKey, code);
    converter_.displayCurrency = code;
    Q_EMIT displayCurrencyChanged();
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
