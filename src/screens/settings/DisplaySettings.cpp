#include "screens/settings/DisplaySettings.h"

#include "screens/components/HostName.h"
#include "screens/components/ShownText.h"

#include <algorithm>

namespace vantrell {

DisplaySettings::DisplaySettings(const ScreenParts& parts, QObject* parent)
    : QObject(parent), parts_(parts), codes_(parts.store.availableCurrencies()) {
    connect(&parts.store, &EarningsStore::displayCurrencyChanged, this, &DisplaySettings::currenciesChanged);
}

QStringList DisplaySettings::currencies() const {
    QStringList shown;
    for (const std::string& code : codes_) {
        shown += shownText(code);
    }
    return shown;
}

int DisplaySettings::chosenCurrency() const {
    const auto chosen = std::ranges::find(codes_, parts_.store.displayCurrency());
    return static_cast<int>(chosen - codes_.begin());
}

void DisplaySettings::chooseCurrency(int place) {
    if (place >= 0 && static_cast<std::size_t>(place) < codes_.size()) {
        parts_.store.setDisplayCurrency(codes_[static_cast<std::size_t>(place)]);
    }
}

QString DisplaySettings::ratesAge() const {
    const auto fetchedAt = parts_.store.converter().fetchedAt;
    return fetchedAt ? tr("Updated %1")
                           .arg(fromUtf8(parts_.locale.relativeTime(*fetchedAt, parts_.clock.now(),
                                                                    parts_.localTime.zone())))
                     : tr("Not fetched yet");
}

void DisplaySettings::refreshRates() {
    parts_.tasks.spawn(parts_.engine.refreshRates(true));
}

QString DisplaySettings::caption() const {
    return tr("Headline figures apply today's rates from %1 to every period; per-currency breakdowns are "
              "always exact.")
        .arg(hostName(parts_.origins.rateService));
}

void DisplaySettings::refresh() {
    std::vector<std::string> codes = parts_.store.availableCurrencies();
    if (codes != codes_) {
        codes_ = std::move(codes);
        Q_EMIT currenciesChanged();
    }
    Q_EMIT ratesAgeChanged();
}

}  // namespace vantrell
