#include "screens/charts/Chart.h"

#include "calendar/DayKey.h"
#include "screens/components/ShownText.h"
#include "screens/words/SalesWords.h"

#include <algorithm>
#include <utility>

namespace vantrell {
namespace {

ChartScale scaleOf(const std::vector<ChartColumn>& columns) {
    double lowest = 0;
    double highest = 0;
    for (const ChartColumn& column : columns) {
        double below = 0;
        double above = 0;
        for (const ChartBar& bar : column.bars) {
            (bar.value < 0 ? below : above) += bar.value;
        }
        lowest = std::min(lowest, below);
        highest = std::max(highest, above);
    }
    return niceScale(lowest, highest);
}

QStringList axisAmounts(const ChartScale& scale, const FigureContext& context) {
    QStringList amounts;
    for (const double mark : scale.marks()) {
        amounts += shownText(context.locale.compactMoney(mark, context.store.displayCurrency()));
    }
    return amounts;
}

std::vector<CivilDate> startsOf(const std::vector<ChartColumn>& columns) {
    std::vector<CivilDate> starts;
    starts.reserve(columns.size());
    std::ranges::transform(columns, std::back_inserter(starts), &ChartColumn::start);
    return starts;
}

ChartContent contentOf(std::vector<ChartColumn> columns, TrendGranularity granularity,
                       const FigureContext& context) {
    const ChartScale scale = scaleOf(columns);
    std::vector<TimeTicks> ticks = timeTicks(startsOf(columns), granularity, context.locale);
    return {std::move(columns), scale, axisAmounts(scale, context), std::move(ticks)};
}

int placeOf(const std::vector<ChartColumn>& columns, CivilDate start) {
    const auto place = std::ranges::find(columns, start, &ChartColumn::start);
    return place == columns.end() ? -1 : static_cast<int>(place - columns.begin());
}

}  // namespace

Chart::Chart(const FigureContext& context, QString title, QObject* parent)
    : QObject(parent), context_(context), title_(std::move(title)) {}

QString Chart::summary() const {
    if (content_.columns.empty()) {
        return tr("No days");
    }
    Sums total;
    for (std::size_t column = 0; column < content_.columns.size(); ++column) {
        const Sums sums = sumsOf(column);
        total.proceeds += sums.proceeds;
        total.refunds += sums.refunds;
    }
    const Locale& locale = context_.locale;
    QStringList parts{
        fromUtf8(locale.dayRange(content_.columns.front().start, content_.columns.back().start)),
        chartAmount(total.proceeds, proceedsLabel()).spoken};
    for (const ChartAmount& refunds : refundLine(total.refunds)) {
        parts += refunds.spoken;
    }
    return parts.join(QStringLiteral(", "));
}

void Chart::select(int column) {
    const int wanted = isColumn(column) ? column : -1;
    if (wanted != selection_) {
        setSelection(wanted);
        Q_EMIT selectionChanged();
    }
}

void Chart::moveSelection(int columns) {
    if (count() > 0) {
        select(selection_ < 0 ? count() - 1 : std::clamp(selection_ + columns, 0, count() - 1));
    }
}

void Chart::open(int column) {
    if (isColumn(column) && opensDays()) {
        onSelectDay_(dayKey(content_.columns[static_cast<std::size_t>(column)].start));
    }
}

void Chart::fillTable() {
    std::vector<ChartTableRow> rows;
    rows.reserve(content_.columns.size());
    for (std::size_t column = content_.columns.size(); column > 0; --column) {
        rows.push_back(tableRow(column - 1));
    }
    table_.show(rows);
}

// The same day stays selected, and is told anew.
void Chart::showColumns(std::vector<ChartColumn> columns, TrendGranularity granularity) {
    const ChartContent before = std::exchange(content_, contentOf(std::move(columns), granularity, context_));
    const bool wasSelected = selection_ >= 0;
    if (wasSelected) {
        setSelection(placeOf(content_.columns, before.columns[static_cast<std::size_t>(selection_)].start));
    }
    Q_EMIT contentChanged();
    if (wasSelected) {
        Q_EMIT selectionChanged();
    }
}

void Chart::setSelection(int column) {
    selection_ = column;
    annotation_ = column < 0 ? ChartAnnotation() : annotationOf(static_cast<std::size_t>(column));
    amounts_.show(annotation_.amounts);
}

ChartAmount Chart::chartAmount(double value, const QString& title) const {
    const Decimal amount = Decimal::fromShortestText(value).value_or(Decimal());
    const std::string& currency = context_.store.displayCurrency();
    const QString spoken = shownText(context_.locale.spokenMoney(amount, currency));
    return {.title = title,
            .amount = shownText(context_.locale.money(amount, currency)),
            .spoken = title.isEmpty() ? spoken : title + QStringLiteral(", ") + spoken};
}

std::vector<ChartAmount> Chart::refundLine(double refunds) const {
    if (!(refunds < 0)) {
        return {};
    }
    ChartAmount line = chartAmount(refunds, tr("Refunds"));
    line.tone = Tone::Bad;
    return {line};
}

ChartTableRow Chart::tableRow(std::size_t column) const {
    const ChartAnnotation annotation = annotationOf(column);
    const Sums sums = sumsOf(column);
    const bool isFetched = content_.columns[column].isFetched;
    const ChartAmount proceeds = isFetched ? chartAmount(sums.proceeds, proceedsLabel()) : ChartAmount();
    const auto refunds = refundLine(sums.refunds);
    return {.title = annotation.title,
            .status = annotation.status,
            .proceeds = proceeds.amount,
            .spokenProceeds = proceeds.spoken,
            .refunds = refunds.empty() ? QString() : refunds.front().amount,
            .spokenRefunds = refunds.empty() ? QString() : refunds.front().spoken,
            .spoken = annotation.spoken()};
}

}  // namespace vantrell
