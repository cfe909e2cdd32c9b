#include "screens/HistoryView.h"

#include "screens/FigureBlocks.h"
#include "screens/components/ShownText.h"

#include <QStringList>

namespace vantrell {

HistoryView::HistoryView(const ScreenParts& parts, QObject* parent) : Screen(parts, parent) {}

void HistoryView::refresh() {
    if (!store().isLoaded()) {
        return;
    }
    const AppFilter& apps = store().appFilter();
    const FigureContext context{store(), locale()};
    years_ = yearStats(snapshot(), store().calendar(), apps);
    months_ = monthStats(snapshot(), store().calendar(), apps);
    products_ = productStats(snapshot(), store().converter(), apps);
    BlockBuilder rows;
    rows.addText(RowKind::Heading, tr("By year"));
    addYears(rows, context, years_);
    if (!snapshot()->unavailableYears.empty()) {
        rows.addText(RowKind::Note, excludedYears());
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
        years += shownText(year);
    }
    return tr("Past Apple's retention and excluded: %1.").arg(years.join(QStringLiteral(", ")));
}

}  // namespace vantrell
