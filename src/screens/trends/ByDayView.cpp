#include "screens/trends/ByDayView.h"

#include "calendar/DayKey.h"
#include "screens/components/PeriodRowView.h"
#include "screens/trends/DayRowView.h"

#include <algorithm>
#include <array>

namespace vantrell {
namespace {

/// Days back from yesterday; 0 for the range of two dates.
constexpr std::array windows{30, 90, 365, 0};
constexpr int daysOfFirstCustomRange = 30;

}  // namespace

ByDayView::ByDayView(const ScreenParts& parts, AppIconStore& icons, QObject* parent)
    : Screen(parts, parent),
      customStart_(
          store().calendar().dateDaysAgo(daysOfFirstCustomRange).value_or(store().calendar().today())),
      customEnd_(store().calendar().today()),
      from_(parts.locale, tr("From")),
      through_(parts.locale, tr("Through")),
      chart_({parts.store, parts.locale}, tr("Trends Over Time")),
      trendLegend_(parts.tasks, icons),
      selectedDay_(parts) {
    chart_.setOnSelectDay([this](const std::string& key) { selectedDay_.open(key, store().appFilter()); });
    connect(&from_, &DateField::picked, this, &ByDayView::setCustomStart);
    connect(&through_, &DateField::picked, this, &ByDayView::setCustomEnd);
    connect(&from_, &DateField::opening, this, &ByDayView::refreshDates);
    connect(&through_, &DateField::opening, this, &ByDayView::refreshDates);
}

bool ByDayView::isCustom() const {
    return windows[static_cast<std::size_t>(windowPlace_)] == 0;
}

bool ByDayView::usesSeriesColors() const {
    return !store().appFilter() || store().appFilter()->size() >= 2;
}

void ByDayView::selectWindow(int place) {
    if (place != windowPlace_ && place >= 0 && place < static_cast<int>(windows.size())) {
        windowPlace_ = place;
        Q_EMIT choiceChanged();
        invalidate();
    }
}

void ByDayView::selectGranularity(int place) {
    if (place != granularityPlace() && place >= 0 && place <= static_cast<int>(TrendGranularity::month)) {
        granularity_ = static_cast<TrendGranularity>(place);
        Q_EMIT choiceChanged();
        invalidate();
    }
}

void ByDayView::setCustomStart(CivilDate day) {
    customStart_ = day;
    invalidate();
}

void ByDayView::setCustomEnd(CivilDate day) {
    customEnd_ = day;
    invalidate();
}

void ByDayView::openDay(const QString& dayKey) {
    selectedDay_.open(dayKey.toStdString(), store().appFilter());
}

void ByDayView::refresh() {
    refreshDates();
    const Range days = range();
    Trend shown = trend(snapshot(), store().converter(), locale(), days.from, days.to, granularity_,
                        store().appFilter());
    chart_.show(std::move(shown.points), granularity_, usesSeriesColors());
    trendLegend_.show(std::move(shown.legend));
    refreshRows(days);
    Q_EMIT figuresChanged();
}

void ByDayView::refreshDates() {
    const CivilDate today = store().calendar().today();
    from_.show(customStart_, {std::nullopt, customEnd_}, today);
    through_.show(customEnd_, {customStart_, std::max(customStart_, today)}, today);
}

void ByDayView::refreshRows(const Range& range) {
    const FigureContext context{store(), locale()};
    const bool isByDay = granularity_ == TrendGranularity::day;
    const AppFilter& apps = store().appFilter();
    days_ = isByDay ? dayTable(snapshot(), range.from, range.to, apps) : std::vector<DayTableRow>();
    periods_ = isByDay ? std::vector<PeriodStat>()
                       : bucketStats(snapshot(), locale(), range.from, range.to, granularity_, apps);
    BlockBuilder rows;
    rows.addText(RowKind::Chart, {});
    rows.beginBlock();
    rows.addText(RowKind::Heading, listTitle());
    rows.addEach(RowKind::Day, days_, [context](const DayTableRow& day) { return dayRowView(context, day); });
    rows.addEach(RowKind::Period, periods_,
                 [context](const PeriodStat& period) { return periodRowView(context, period); });
    rows_.show(rows.take());
}

ByDayView::Range ByDayView::range() const {
    if (isCustom()) {
        const auto [first, last] = std::minmax(customStart_, customEnd_);
        return {dayKey(first), dayKey(last)};
    }
    const ReportCalendar& calendar = store().calendar();
    return {calendar.dayKey(windows[static_cast<std::size_t>(windowPlace_)]), calendar.dayKey(1)};
}

QString ByDayView::listTitle() const {
    switch (granularity_) {
        case TrendGranularity::day:
            return tr("Days");
        case TrendGranularity::week:
            return tr("Weeks");
        case TrendGranularity::month:
            return tr("Months");
    }
    return {};
}

}  // namespace vantrell
