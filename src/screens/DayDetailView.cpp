#include "screens/DayDetailView.h"

#include "screens/components/DayText.h"
#include "screens/components/LineItemRow.h"
#include "screens/components/RowText.h"
#include "screens/components/StatusLabel.h"
#include "screens/components/UnitsCaption.h"

#include <algorithm>
#include <utility>

namespace vantrell {

DayDetailView::DayDetailView(const ScreenParts& parts, std::string dayKey, AppFilter apps, QObject* parent)
    : Screen(parts, parent), dayKey_(std::move(dayKey)), apps_(std::move(apps)) {
    setInSight(true);
}

QString DayDetailView::title() const {
    return dayTitle(locale(), dayKey_);
}

void DayDetailView::refresh() {
    const SalesSelection selection = store().dailyRows(dayKey_, dayKey_, apps_);
    const AggregateStats stats = selection.aggregate();
    caption_ = unitsCaption(locale(), stats, true);
    money_ = moneyValue({store(), locale()}, stats.proceedsByCurrency, proceedsLabel());
    std::vector<SalesRowLite> rows = selection.rows();
    std::ranges::stable_sort(rows, [this](const SalesRowLite& left, const SalesRowLite& right) {
        return store().lineItemOrder(left, right);
    });
    std::vector<LineItemRow> lines;
    lines.reserve(rows.size());
    for (const SalesRowLite& row : rows) {
        lines.push_back(lineItemRow(locale(), row));
    }
    noLinesText_ = lines.empty() ? statusText() : QString();
    lines_.show(lines);
    Q_EMIT changed();
}

QString DayDetailView::statusText() const {
    const auto status = store().dailyStatuses().find(dayKey_);
    return status == store().dailyStatuses().end() ? tr("No rows for this day.")
                                                   : statusLabel(status->second).text;
}

}  // namespace vantrell
