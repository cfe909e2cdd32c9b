#include "screens/apps/AppsView.h"

#include "screens/AppIconProvider.h"
#include "screens/apps/AppPayoutRow.h"
#include "screens/apps/YearsRow.h"

#include <algorithm>
#include <utility>

namespace vantrell {

AppsView::AppsView(const ScreenParts& parts, AppIconStore& icons, QObject* parent)
    : Screen(parts, parent), icons_(icons) {
    connect(&icons_, &AppIconStore::urlsChanged, &rows_, &BlockList::touch);
}

void AppsView::refresh() {
    // Before the first load there is nothing to tell, not even that there is nothing.
    if (!store().isLoaded()) {
        return;
    }
    const bool isNew = loadedRevision_ != store().loadRevision();
    if (isNew) {
        takeSnapshots();
    }
    BlockBuilder rows;
    const bool isEmpty =
        std::ranges::none_of(entries_, [this](const AppTableEntry& entry) { return passes(entry.app); });
    if (!isEmpty) {
        addProceeds(rows);
        addYears(rows);
        addPayouts(rows);
    }
    rows_.show(rows.take());
    showEmptyState(isEmpty);
    if (isNew) {
        Q_EMIT yearCountChanged();
        loadIcons();
    }
}

void AppsView::takeSnapshots() {
    loadedRevision_ = store().loadRevision();
    entries_ = appTable(snapshot(), store().converter(), store().calendar());
    matrix_ = yearMatrix(snapshot(), store().converter());
    payouts_ = appPayouts(*snapshot(), store().calendar());
    productsByApp_ = productWindows(snapshot(), store().converter(), store().calendar());
}

void AppsView::loadIcons() {
    std::vector<std::int64_t> apps;
    apps.reserve(entries_.size());
    for (const AppTableEntry& entry : entries_) {
        apps.push_back(entry.app.id);
    }
    parts().tasks.spawn(icons_.loadIcons(std::move(apps)));
}

void AppsView::addProceeds(BlockBuilder& rows) {
    rows.beginBlock();
    rows.addText(RowKind::Heading, tr("Proceeds"));
    rows.add(RowKind::WindowTitles, [] { return windowTitles(); });
    bool isBanded = false;
    for (const AppTableEntry& entry : entries_) {
        if (passes(entry.app)) {
            addEntry(rows, entry, isBanded);
            isBanded = !isBanded;
        }
    }
}

void AppsView::addEntry(BlockBuilder& rows, const AppTableEntry& entry, bool isBanded) {
    const auto products = productsByApp_.find(entry.app.id);
    const bool hasProducts = products != productsByApp_.end() && !products->second.empty();
    rows.add(RowKind::AppWindows, [this, &entry, isBanded, hasProducts] {
        WindowsRow row = windowsRow(context(), entry);
        row.icon = AppIconProvider::sourceFor(entry.app.id, icons_);
        row.isBanded = isBanded;
        row.endsEntry = !hasProducts;
        return row;
    });
    if (!hasProducts) {
        return;
    }
    for (const ProductWindowStat& product : products->second) {
        const bool isLast = &product == &products->second.back();
        rows.add(RowKind::ProductWindows, [this, &product, isBanded, isLast] {
            WindowsRow row = windowsRow(context(), product);
            row.isBanded = isBanded;
            row.startsEntry = false;
            row.endsEntry = isLast;
            return row;
        });
    }
}

void AppsView::addYears(BlockBuilder& rows) {
    if (matrix_.years.empty()) {
        return;
    }
    rows.beginBlock();
    rows.addText(RowKind::Heading, tr("By year"));
    rows.add(RowKind::YearTitles, [this] { return yearTitles(context(), matrix_.years); });
    for (const AppTableEntry& entry : entries_) {
        if (passes(entry.app)) {
            rows.add(RowKind::Years, [this, &entry] { return yearsRow(context(), entry.app, matrix_); });
        }
    }
    rows.addText(RowKind::Note, tr("Converted at today's rates."));
}

void AppsView::addPayouts(BlockBuilder& rows) {
    const auto paid = [this](const AppPayout& payout) { return passes(payout.app); };
    if (std::ranges::none_of(payouts_, paid)) {
        return;
    }
    rows.beginBlock();
    rows.addText(RowKind::Heading, tr("Paid by Apple"));
    rows.add(RowKind::PayoutTitles, [] { return appPayoutTitles(); });
    for (const AppPayout& payout : payouts_) {
        if (paid(payout)) {
            rows.add(RowKind::Payout, [this, &payout] { return appPayoutRow(context(), payout); });
        }
    }
    rows.addText(RowKind::Note,
                 tr("From finance reports — what actually settled, attributed by Apple Identifier."));
}

void AppsView::showEmptyState(bool isEmpty) {
    EmptyState state;
    if (isEmpty && entries_.empty()) {
        state = {.title = tr("No apps yet"),
                 .symbol = QStringLiteral("square.grid.2x2"),
                 .description = tr("Apps appear here once sales reports have been fetched.")};
    } else if (isEmpty) {
        state = {.title = tr("No apps selected"),
                 .symbol = QStringLiteral("line.3.horizontal.decrease.circle"),
                 .description = tr("Check some apps in the toolbar filter to see them here.")};
    }
    if (state != emptyState_) {
        emptyState_ = state;
        Q_EMIT emptyStateChanged();
    }
}

bool AppsView::passes(const AppInfo& app) const {
    const AppFilter& filter = store().appFilter();
    return !filter || filter->contains(app.id);
}

}  // namespace vantrell
