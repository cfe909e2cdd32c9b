#include "screens/settings/SyncSettings.h"

#include "calendar/DayKey.h"
#include "calendar/ReportSchedule.h"
#include "calendar/YearMonth.h"
#include "screens/components/ShownText.h"
#include "screens/words/DayText.h"
#include "screens/words/RunWords.h"
#include "screens/words/SalesWords.h"

#include <optional>

namespace vantrell {
namespace {

/// Of all reports of a day, or of a month and its days.
std::int64_t storedLines(const ModelContext& context, const std::string& label) {
    std::int64_t lines = 0;
    for (const LineBatch& batch : context.salesLines().batches()) {
        const bool isOf = batch.label == label || batch.label.starts_with(label + "-");
        lines += isOf && batch.group != rawText(ReportFrequency::weekly) ? batch.lineCount : 0;
    }
    return lines;
}

QString onlyCopyQuestion(const Locale& locale, const QString& period, std::int64_t lines) {
    return SyncSettings::tr(
               "Apple keeps daily and monthly reports for a year. The %1 lines that are stored of "
               "%2 may be the only copy; what nothing comes in place of is kept in the folder "
               "“backup”.",
               nullptr, pluralNumber(lines))
        .arg(fromUtf8(locale.count(lines)), period);
}

}  // namespace

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
    if (!canFetchDay()) {
        return;
    }
    const std::string day = dayKey(chosenDay_);
    const std::int64_t lines = storedLines(parts_.context, day);
    if (lines > 0 && day < parts_.store.calendar().dayKey(daysOfBackfill)) {
        dayQuestion_.ask(onlyCopyQuestion(parts_.locale, dayTitle(parts_.locale, day), lines),
                         {tr("Fetch Anyway"), [this] { fetchDayNow(); }});
    } else {
        fetchDayNow();
    }
}

void SyncSettings::fetchDayNow() {
    if (canFetchDay()) {
        parts_.tasks.spawn(parts_.engine.refetchDay(chosenDay_));
    }
}

void SyncSettings::setMonth(const QString& month) {
    if (month != month_) {
        month_ = month;
        monthProblem_.clear();
        Q_EMIT requestsChanged();
    }
}

bool SyncSettings::canFetchMonth() const {
    return !parts_.engine.isSyncing() && !month_.isEmpty();
}

void SyncSettings::fetchMonth() {
    const auto typed = parseYearMonth(month_.toStdString());
    if (!typed) {
        monthProblem_ = runText(RunFailure{RunFailure::Kind::noMonth});
        Q_EMIT requestsChanged();
        return;
    }
    const std::string month = yearMonthText(*typed);
    const std::int64_t lines = storedLines(parts_.context, month);
    if (canFetchMonth() && lines > 0 && month < parts_.store.calendar().monthKey(monthsOfBackfill)) {
        monthQuestion_.ask(onlyCopyQuestion(parts_.locale, monthKeyLabel(parts_.locale, month), lines),
                           {tr("Fetch Anyway"), [this] { fetchMonthNow(); }});
    } else {
        fetchMonthNow();
    }
}

void SyncSettings::fetchMonthNow() {
    if (canFetchMonth()) {
        parts_.tasks.spawn(parts_.engine.refetchMonth(month_.toStdString()));
    }
}

// A window may stay open for days: the last choice of another day would be a trap.
void SyncSettings::appear() {
    dayQuestion_.dismiss();
    monthQuestion_.dismiss();
    chooseDay(parts_.store.calendar().today());
}

void SyncSettings::chooseDay(CivilDate day) {
    const CivilDate today = parts_.store.calendar().today();
    chosenDay_ = day;
    day_.show(day, {.earliest = std::nullopt, .latest = today}, today);
}

}  // namespace vantrell
