#include "screens/day/DayDetailView.h"

#include "figures/SalesSelection.h"
#include "screens/day/LineItemRow.h"
#include "screens/words/DayText.h"
#include "screens/words/SalesWords.h"
#include "screens/words/StatusLabel.h"
#include "screens/words/UnitsCaption.h"

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
    const AggregateStats stats = dailyRows(snapshot(), dayKey_, dayKey_, apps_).aggregate();
    caption_ = unitsCaption(locale(), stats, true);
    money_ = moneyValue({store(), locale()}, stats.proceedsByCurrency, proceedsLabel());
    // The list may ask for its old rows until it has the new ones.
    const SharedSnapshot textsBefore = std::exchange(texts_, snapshot());
    const std::vector<SalesRowLite> before =
        std::exchange(items_, lineItems(snapshot(), store().converter(), dayKey_, apps_));
    BlockBuilder lines;
    lines.addEach(RowKind::LineItem, items_,
                  [this](const SalesRowLite& item) { return lineItemRow(locale(), item); });
    lines_.show(lines.take());
    noLinesText_ = items_.empty() ? statusText() : QString();
    Q_EMIT changed();
}

QString DayDetailView::statusText() const {
    const auto status = snapshot()->dailyStatuses.find(dayKey_);
    return status == snapshot()->dailyStatuses.end() ? tr("No rows for this day.")
                                                     : statusLabel(status->second).text;
}

}  // namespace vantrell
