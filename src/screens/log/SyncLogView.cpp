#include "screens/log/SyncLogView.h"

#include <algorithm>
#include <ranges>
#include <utility>

namespace vantrell {
namespace {

constexpr std::size_t shownEntries = 500;

using Entry = std::pair<Instant, RecordID>;

// Of one moment what was written last comes first.
std::vector<Entry> newestEntries(const std::map<RecordID, SyncLogEntry>& log) {
    std::vector<Entry> entries;
    entries.reserve(log.size());
    for (const auto& [id, entry] : log) {
        entries.emplace_back(entry.date, id);
    }
    const std::size_t count = std::min(shownEntries, entries.size());
    std::ranges::partial_sort(entries, entries.begin() + static_cast<std::ptrdiff_t>(count), std::greater());
    entries.resize(count);
    return entries;
}

}  // namespace

SyncLogView::SyncLogView(const ScreenParts& parts, QObject* parent) : Screen(parts, parent) {
    connect(&engine(), &SyncEngine::syncLogChanged, this, &SyncLogView::invalidate);
}

void SyncLogView::refresh() {
    const auto& log = parts().context.syncLog().all();
    const TimeZone zone = parts().localTime.zone();
    std::vector<SyncLogRow> rows;
    for (const auto& [date, id] : newestEntries(log)) {
        rows.push_back(syncLogRow(locale(), zone, log.at(id)));
    }
    rows_.show(rows);
}

}  // namespace vantrell
