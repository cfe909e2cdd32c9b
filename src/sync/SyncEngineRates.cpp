#include "currency/RatesFetcher.h"
#include "sync/SyncEngine.h"

#include <utility>
#include <variant>

// The stored exchange rates.

namespace vantrell {
namespace {

constexpr auto ratesLifetime = std::chrono::hours(24);

}  // namespace

QCoro::Task<> SyncEngine::refreshRates(bool force) {
    if (isClosing()) {
        co_return;
    }
    const auto& sets = context_.rateSets().all();
    if (!sets.empty() && !force) {
        // What lies ahead was noted before the clock was set back.
        const auto age = clock_.now() - sets.begin()->second.fetchedAt;
        if (age >= age.zero() && age < ratesLifetime) {
            co_return;
        }
    }
    auto fetched = co_await RatesFetcher::fetch(http_, settings_.rateService, life_.token());
    if (isClosing()) {
        co_return;
    }
    if (auto* rates = std::get_if<Rates>(&fetched)) {
        const std::string summary = std::to_string(rates->size()) + " currencies against USD";
        storeRates(std::move(*rates));
        log("rates", "ok", summary);
    } else {
        log("rates", "error", std::get<RatesError>(fetched).description);
    }
    // A run saves the log line at its end; without one nobody else would.
    if (!isSyncing_) {
        save();
    }
}

void SyncEngine::storeRates(Rates rates) {
    auto& sets = context_.rateSets();
    RateSet set = sets.all().empty() ? RateSet() : sets.all().begin()->second;
    set.rates = std::move(rates);
    set.fetchedAt = clock_.now();
    if (sets.all().empty()) {
        sets.insert(std::move(set));
    } else {
        sets.update(sets.all().begin()->first, std::move(set));
    }
    save();
    bumpRevision(true);
}

}  // namespace vantrell
