#include "screens/trends/TrendLegendView.h"

#include "screens/AppIconProvider.h"
#include "screens/components/ShownText.h"
#include "screens/words/SalesWords.h"

#include <utility>

namespace vantrell {

TrendLegendView::TrendLegendView(TaskScope& tasks, AppIconStore& icons, QObject* parent)
    : QObject(parent), tasks_(tasks), icons_(icons) {
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
                        item.appID ? AppIconProvider::sourceFor(*item.appID, icons_) : QString()});
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

}  // namespace vantrell
