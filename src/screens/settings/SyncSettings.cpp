#include "screens/settings/SyncSettings.h"

#include "calendar/DayKey.h"
#include "screens/components/ShownText.h"

namespace vantrell {

SyncSettings::SyncSettings(const ScreenParts& parts, QObject* parent)
    : QObject(parent), parts_(parts), banner_(parts.engine) {
    connect(&parts.engine, &SyncEngine::lastRunSummaryChanged, this, &SyncSettings::summaryChanged);
    connect(&parts.engine, &SyncEngine::isSyncingChanged, this, &SyncSettings::requestsChanged);
    appear();
}

QString SyncSettings::summary() const {
    return shownText(parts_.engine.lastRunSummary());
}

void SyncSettings::setDay(const QString& day) {
    if (day != day_) {
        day_ = day;
        Q_EMIT requestsChanged();
    }
}

bool SyncSettings::canFetchDay() const {
    return !parts_.engine.isSyncing() && chosenDay().has_value();
}

void SyncSettings::fetchDay() {
    if (canFetchDay()) {
        parts_.tasks.spawn(parts_.engine.refetchDay(*chosenDay()));
    }
}

void SyncSettings::setMonth(const QString& month) {
    if (month != month_) {
        month_ = month;
        Q_EMIT requestsChanged();
    }
}

bool SyncSettings::canFetchMonth() const {
    return !parts_.engine.isSyncing() && !month_.isEmpty();
}

void SyncSettings::fetchMonth() {
    if (canFetchMonth()) {
        parts_.tasks.spawn(parts_.engine.refetchMonth(month_.toStdString()));
    }
}

QString SyncSettings::caption() const {
    return tr(
        "Apple restates reports; re-fetching an already-held report replaces its rows and is always "
        "safe.");
}

// A window may stay open for days: the last choice of another day would be a trap.
void SyncSettings::appear() {
    setDay(QString::fromStdString(dayKey(parts_.store.calendar().today())));
}

std::optional<CivilDate> SyncSettings::chosenDay() const {
    const auto day = dateFromDayKey(day_.toStdString());
    const bool isFetchable = day && *day <= parts_.store.calendar().today();
    return isFetchable ? day : std::nullopt;
}

}  // namespace vantrell
