#include "screens/dashboard/DashboardView.h"

#include "figures/Coverage.h"
#include "figures/Days.h"
#include "screens/HeadlineFigures.h"
#include "screens/components/ShownText.h"
#include "screens/components/StatTile.h"
#include "screens/words/CoverageWords.h"
#include "screens/words/RunWords.h"

#include <algorithm>

namespace vantrell {

DashboardView::DashboardView(const ScreenParts& parts, QObject* parent)
    : Screen(parts, parent),
      banner_(parts.engine),
      selectedDay_(parts),
      chart_({parts.store, parts.locale}, tr("Last 30 days")) {
    chart_.setOnSelectDay([this](const std::string& key) { selectedDay_.open(key, store().appFilter()); });
    connect(&engine(), &SyncEngine::lastErrorChanged, this, &DashboardView::errorChanged);
    connect(&engine(), &SyncEngine::isSyncingChanged, this, &DashboardView::refreshEmptiness);
    connect(&parts.context.health(), &StoreHealth::changed, this, &DashboardView::isEmptyChanged);
}

QString DashboardView::error() const {
    return shownText(runText(engine().lastError()).toStdString(), messageCharacters);
}

EmptyState DashboardView::emptyState() const {
    if (parts().context.health().isDamaged()) {
        return {.title = tr("Nothing can be read"),
                .symbol = QStringLiteral("exclamationmark.triangle.fill"),
                .description = tr("What this store holds is damaged.")};
    }
    return {.title = tr("No reports yet"),
            .symbol = QStringLiteral("chart.bar.xaxis"),
            .description = tr("Fetch a year of daily reports, plus yearly, monthly and finance reports, from "
                              "App Store Connect. The dashboard fills in as days land.")};
}

void DashboardView::refresh() {
    // Before the first load there is nothing to tell, not even that there is nothing.
    if (!store().isLoaded()) {
        return;
    }
    refreshEmptiness();
    std::vector<StatTile> tiles;
    for (const HeadlineFigure& figure : headlineFigures(store(), locale())) {
        tiles.push_back(statTile({store(), locale()}, figure));
    }
    tiles_.show(tiles);
    const ReportCalendar& calendar = store().calendar();
    const std::string from = std::min(calendar.dayKey(30), calendar.currentYearLabel() + "-01-01");
    lacking_ = lackingDaysText(locale(), dayCounts(*snapshot(), from, calendar.dayKey(1)));
    Q_EMIT lackingChanged();
    chart_.show(dayPoints(snapshot(), store().converter(), calendar.dayKey(30), calendar.dayKey(1),
                          store().appFilter()));
}

void DashboardView::refreshEmptiness() {
    const bool isEmpty = store().isLoaded() && snapshot()->salesRows.empty() && !engine().isSyncing();
    if (isEmpty != isEmpty_) {
        isEmpty_ = isEmpty;
        Q_EMIT isEmptyChanged();
    }
}

}  // namespace vantrell
