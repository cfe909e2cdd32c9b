#include "screens/history/HistoryView.h"

#include "screens/FigureBlocks.h"
#include "screens/components/ShownText.h"
#include "screens/words/CoverageWords.h"

#include <algorithm>

#include <QStringList>

namespace vantrell {

void HistoryView::refresh() {
    if (!store().isLoaded()) {
        return;
    }
    const AppFilter& apps = store().appFilter();
    const FigureContext context{store(), locale()};
    years_ = yearStats(snapshot(), store().calendar(), apps);
    months_ = monthStats(snapshot(), store().calendar(), apps);
    products_ = productStats(snapshot(), store().converter(), apps);
    const Coverage stored = vantrell::coverage(*snapshot(), store().calendar());
    coverage_ = coverageText(locale(), stored);
    isWhole_ = stored.isWhole();
    strip_.show(coveredDays(*snapshot(), store().calendar()));
    Q_EMIT coverageChanged();
    BlockBuilder rows;
    rows.addText(RowKind::Heading, tr("By year"));
    addYears(rows, context, years_);
    if (const QString excluded = excludedYears(); !excluded.isEmpty()) {
        rows.addText(RowKind::Note, excluded);
    }
    rows.beginBlock();
    rows.addText(RowKind::Heading, tr("By month"));
    addMonths(rows, context, months_);
    rows.beginBlock();
    rows.addText(RowKind::Heading, tr("All time by product"));
    addProducts(rows, context, products_);
    rows_.show(rows.take());
}

QString HistoryView::excludedYears() const {
    QStringList years;
    for (const std::string& year : snapshot()->unavailableYears) {
        // One whose days are stored counts by them.
        if (std::ranges::find(years_, year, &PeriodStat::label) == years_.end()) {
            years += shownText(year);
        }
    }
    return years.isEmpty()
               ? QString()
               : tr("Past Apple's retention and excluded: %1.").arg(years.join(QStringLiteral(", ")));
}

}  // namespace vantrell
