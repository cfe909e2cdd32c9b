#include "screens/trends/TrendLegendView.h"

#include "screens/AppIconProvider.h"
#include "screens/components/ShownText.h"
#include "screens/words/SalesWords.h"

#include <utility>

namespace vantrell {

TrendLegendView::TrendLegendView(const ScreenParts& parts, QObject* parent)
    : QObject(parent),
      tasks_(parts.tasks),
      icons_({parts.http, parts.defaults, parts.locale}, parts.origins.lookupService) {
    connect(&icons_, &AppIconStore::urlsChanged, this, &TrendLegendView::refresh);
}

void TrendLegendView::show(std::vector<TrendLegendItem> items) {
    items_ = std::move(items);
    refresh();
    loadIcons();
}

void TrendLegendView::refresh() {
    std::vector<TrendLegendRow> rows;
    rows.reserve(items_.size());
    for (const TrendLegendItem& item : items_) {
        rows.push_back({item.appID ? shownText(item.title) : otherAppsLabel(), seriesColor(item.colorIndex),
                        iconOf(item)});
    }
    rows_.show(rows);
}

void TrendLegendView::loadIcons() {
    std::vector<std::int64_t> apps;
    for (const TrendLegendItem& item : items_) {
        if (item.appID) {
            apps.push_back(*item.appID);
        }
    }
    if (apps != apps_) {
        apps_ = apps;
        tasks_.spawn(icons_.loadIcons(std::move(apps)));
    }
}

QString TrendLegendView::iconOf(const TrendLegendItem& item) const {
    const auto address = item.appID ? icons_.urls().find(*item.appID) : icons_.urls().end();
    return address == icons_.urls().end() ? QString() : AppIconProvider::source(address->second);
}

}  // namespace vantrell
