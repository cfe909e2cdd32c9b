#pragma once

#include "calendar/ReportCalendar.h"
#include "currency/CurrencyConverter.h"
#include "figures/AppFilter.h"
#include "figures/Snapshot.h"
#include "figures/SnapshotLoader.h"
#include "files/Defaults.h"
#include "locale/Locale.h"

#include <cstdint>
#include <string>
#include <vector>

#include <QObject>

namespace vantrell {

/// What every screen watches: the newest snapshot of what is stored, and the two choices that change what is
/// worked out from it. It never writes to the store, and takes in new data only by `reload`.
///
/// Main thread only.
class EarningsStore : public QObject {
    Q_OBJECT

  public:
    /// The display currency is the one that was chosen last, else that of the locale, else "USD".
    EarningsStore(Defaults& defaults, const Locale& locale, const ReportCalendar& calendar);

    /// Reads some of what the next reload will need, so that it is quick; false when that was little or
    /// nothing, and the reload can follow. Nothing that is shown changes before it.
    [[nodiscard]] bool readAhead(const ModelContext& context) { return loader_.readAhead(context); }
    void reload(const ModelContext& context);

    /// An empty one until the first reload.
    [[nodiscard]] const SharedSnapshot& snapshot() const { return snapshot_; }
    [[nodiscard]] const CurrencyConverter& converter() const { return converter_; }
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

  Q_SIGNALS:
    void catalogChanged();
    /// After all other changes of a reload.
    void loadRevisionChanged();
    void isLoadedChanged();
    void appFilterChanged();
    void displayCurrencyChanged();

  private:
    void raiseLoadRevision();

    Defaults& defaults_;
    const ReportCalendar& calendar_;
    SnapshotLoader loader_;
    SharedSnapshot snapshot_ = std::make_shared<const Snapshot>();
    CurrencyConverter converter_;
    std::int64_t loadRevision_ = 0;
    bool isLoaded_ = false;
    AppFilter appFilter_;
};

}  // namespace vantrell
