#include "screens/apps/AppDetailView.h"

#include "figures/Days.h"
#include "screens/FigureBlocks.h"
#include "screens/HeadlineFigures.h"
#include "screens/apps/CountryRow.h"
#include "screens/components/ShownText.h"
#include "screens/components/StatTile.h"

#include <set>

namespace vantrell {
namespace {

constexpr std::size_t maxCountries = 20;

}  // namespace

AppDetailView::AppDetailView(const ScreenParts& parts, std::int64_t appID, QObject* parent)
    : Screen(parts, parent),
      appID_(appID),
      apps_(std::set{appID}),
      selectedDay_(parts),
      chart_({parts.store, parts.locale}, tr("Last 30 days")) {
    chart_.setOnSelectDay([this](const std::string& key) { selectedDay_.open(key, apps_); });
    setInSight(true);
}

void AppDetailView::refresh() {
    if (loadedRevision_ == store().loadRevision()) {
        return;
    }
    loadedRevision_ = store().loadRevision();
    takeSnapshots();
    showTitle();
    showTiles();
    const ReportCalendar& calendar = store().calendar();
    chart_.show(dayPoints(snapshot(), store().converter(), calendar.dayKey(30), calendar.dayKey(1), apps_));
    showRows();
}

void AppDetailView::takeSnapshots() {
    years_ = yearStats(snapshot(), store().calendar(), apps_);
    months_ = monthStats(snapshot(), store().calendar(), apps_);
    products_ = productStats(snapshot(), store().converter(), apps_);
    countries_ = countryStats(snapshot(), store().converter(), apps_, maxCountries);
}

void AppDetailView::showTitle() {
    const auto& apps = snapshot()->catalog->appByID();
    const auto app = apps.find(appID_);
    const QString title = app == apps.end() ? QString() : shownText(app->second.title);
    if (title != title_) {
        title_ = title;
        Q_EMIT titleChanged();
    }
}

void AppDetailView::showTiles() {
    std::vector<StatTile> tiles;
    for (const HeadlineFigure& figure : appHeadlineFigures(store(), locale(), appID_)) {
        tiles.push_back(statTile({store(), locale()}, figure));
    }
    tiles_.show(tiles);
}

void AppDetailView::showRows() {
    const FigureContext context{store(), locale()};
    BlockBuilder rows;
    const auto beginList = [&](const QString& heading, bool isEmpty, const QString& absence) {
        rows.beginBlock();
        rows.addText(RowKind::Heading, heading);
        if (isEmpty) {
            rows.addText(RowKind::Absence, absence);
        }
    };
    rows.addText(RowKind::Tiles, {});
    rows.beginBlock();
    rows.addText(RowKind::Heading, chart_.title());
    rows.addText(RowKind::Chart, {});
    beginList(tr("By year"), years_.empty(), tr("Nothing here yet."));
    addYears(rows, context, years_);
    beginList(tr("By month"), months_.empty(), tr("Nothing here yet."));
    addMonths(rows, context, months_);
    beginList(tr("Products · all time"), products_.empty(), tr("No products yet."));
    addProducts(rows, context, products_);
    beginList(tr("Top countries · all time"), countries_.empty(), tr("No sales yet."));
    rows.addEach(RowKind::Country, countries_,
                 [context](const CountryStat& country) { return countryRow(context, country); });
    rows_.show(rows.take());
}

}  // namespace vantrell
