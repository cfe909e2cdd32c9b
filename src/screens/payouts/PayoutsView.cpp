#include "screens/payouts/PayoutsView.h"

#include "calendar/ReportSchedule.h"
#include "screens/components/ShownText.h"

namespace vantrell {
namespace {

QString sinceText(const FigureContext& context, const FinancePeriodStat& oldest) {
    if (!oldest.start) {
        return {};
    }
    const QString day = fromUtf8(context.locale.date(context.store.calendar().dateAt(*oldest.start)));
    return oldest.label == firstBackfillPeriod
               ? PayoutsView::tr("Payouts go back to %1; those of earlier fiscal months are not fetched.")
                     .arg(day)
               : PayoutsView::tr("Payouts go back to %1.").arg(day);
}

}  // namespace

PayoutsView::PayoutsView(const ScreenParts& parts, QObject* parent) : Screen(parts, parent) {
    connect(&engine(), &SyncEngine::isSyncingChanged, this, &PayoutsView::canRefetchChanged);
    connect(&parts.context.health(), &StoreHealth::changed, this, &PayoutsView::changed);
}

EmptyState PayoutsView::emptyState() const {
    const bool isDamaged = parts().context.health().isDamaged();
    return {.title = isDamaged ? tr("No payouts can be read") : tr("No payouts yet"),
            .symbol = QStringLiteral("banknote"),
            .description = isDamaged ? tr("This store is damaged.")
                           : store().appFilter()
                               ? tr("The selected apps haven't appeared in a finance report yet.")
                               : tr("Finance reports appear here once a sync has fetched them.")};
}

void PayoutsView::toggle(int place) {
    if (!isRow(place)) {
        return;
    }
    const std::string& label = labels_[static_cast<std::size_t>(place)];
    if (expanded_.erase(label) == 0) {
        expanded_.insert(label);
    }
    refresh();
}

void PayoutsView::refetch(int place) {
    if (isRow(place) && canRefetch()) {
        parts().tasks.spawn(engine().refetchFinance(labels_[static_cast<std::size_t>(place)]));
    }
}

void PayoutsView::refresh() {
    labels_.clear();
    std::vector<PayoutRow> rows;
    const auto periods = financePeriods(*snapshot(), store().appFilter());
    since_ = periods.empty() ? QString() : sinceText({store(), locale()}, periods.back());
    for (const FinancePeriodStat& period : periods) {
        rows.push_back(payoutRow({store(), locale()}, period, expanded_.contains(period.label)));
        labels_.push_back(period.label);
    }
    rows_.show(rows);
    Q_EMIT changed();
}

bool PayoutsView::isRow(int place) const {
    return place >= 0 && static_cast<std::size_t>(place) < labels_.size();
}

}  // namespace vantrell
