#include "screens/settings/SyncSettings.h"

#include "screens/components/ShownText.h"
#include "screens/words/RunWords.h"

#include <optional>

namespace vantrell {

SyncSettings::SyncSettings(const ScreenParts& parts, QObject* parent)
    : QObject(parent), parts_(parts), banner_(parts.engine), day_(parts.locale, tr("Re-fetch one day")) {
    connect(&parts.engine, &SyncEngine::lastRunChanged, this, &SyncSettings::summaryChanged);
    connect(&parts.engine, &SyncEngine::isSyncingChanged, this, &SyncSettings::requestsChanged);
    connect(&day_, &DateField::picked, this, &SyncSettings::chooseDay);
    connect(&day_, &DateField::opening, this, [this] { chooseDay(chosenDay_); });
    appear();
}

QString SyncSettings::summary() const {
    const QString text = runText(parts_.engine.lastRun(), parts_.locale, parts_.localTime.zone());
    return shownText(text.toStdString(), messageCharacters);
}

void SyncSettings::fetchDay() {
    if (canFetchDay()) {
        parts_.tasks.spawn(parts_.engine.refetchDay(chosenDay_));
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

// A window may stay open for days: the last choice of another day would be a trap.
void SyncSettings::appear() {
    chooseDay(parts_.store.calendar().today());
}

void SyncSettings::chooseDay(CivilDate day) {
    const CivilDate today = parts_.store.calendar().today();
    chosenDay_ = day;
    day_.show(day, {.earliest = std::nullopt, .latest = today}, today);
}

}  // namespace vantrell
