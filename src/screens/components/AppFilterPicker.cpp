#include "screens/components/AppFilterPicker.h"

#include "screens/components/ShownText.h"

#include <utility>

namespace vantrell {

AppFilterPicker::AppFilterPicker(EarningsStore& store, const Locale& locale, QObject* parent)
    : QObject(parent), store_(store), locale_(locale) {
    connect(&store, &EarningsStore::appFilterChanged, this, &AppFilterPicker::refresh);
    connect(&store, &EarningsStore::catalogChanged, this, &AppFilterPicker::refresh);
    refresh();
}

QString AppFilterPicker::title() const {
    const AppFilter& filter = store_.appFilter();
    if (!filter) {
        return tr("All Apps");
    }
    if (filter->empty()) {
        return tr("No Apps");
    }
    const auto& apps = store_.snapshot()->catalog->appByID();
    const auto only = apps.find(*filter->begin());
    if (filter->size() == 1 && only != apps.end()) {
        return shownText(only->second.title);
    }
    const auto count = static_cast<int>(filter->size());
    return tr("%1 App(s)", nullptr, count).arg(fromUtf8(locale_.count(count)));
}

void AppFilterPicker::setAllOn(bool isOn) {
    store_.setAppFilter(isOn ? AppFilter() : AppFilter(std::in_place));
}

void AppFilterPicker::setOn(int place, bool isOn) {
    const auto& apps = store_.snapshot()->catalog->apps();
    if (place < 0 || static_cast<std::size_t>(place) >= apps.size()) {
        return;
    }
    const std::int64_t app = apps[static_cast<std::size_t>(place)].id;
    std::set<std::int64_t> chosen = store_.appFilter().value_or(allApps());
    if (isOn) {
        chosen.insert(app);
    } else {
        chosen.erase(app);
    }
    store_.setAppFilter(chosen == allApps() ? AppFilter() : AppFilter(std::move(chosen)));
}

void AppFilterPicker::refresh() {
    std::vector<AppFilterItem> items;
    const AppFilter& filter = store_.appFilter();
    for (const AppInfo& app : store_.snapshot()->catalog->apps()) {
        items.push_back({shownText(app.title), !filter || filter->contains(app.id)});
    }
    items_.show(items);
    Q_EMIT changed();
}

std::set<std::int64_t> AppFilterPicker::allApps() const {
    std::set<std::int64_t> apps;
    for (const AppInfo& app : store_.snapshot()->catalog->apps()) {
        apps.insert(app.id);
    }
    return apps;
}

}  // namespace vantrell
