#include "screens/trends/TrendChart.h"

#include "screens/components/ShownText.h"
#include "screens/words/SalesWords.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace vantrell {
namespace {

// An annotation of more lines would hide the chart.
constexpr std::size_t mostSlices = 12;
constexpr int titleCharacters = 60;

}  // namespace

TrendChart::TrendChart(const FigureContext& context, QString title, QObject* parent)
    : Chart(context, std::move(title), parent) {}

void TrendChart::show(std::vector<TrendPoint> points, TrendGranularity granularity, bool usesSeriesColors) {
    points_ = std::move(points);
    granularity_ = granularity;
    usesSeriesColors_ = usesSeriesColors;
    std::vector<ChartColumn> columns;
    columns.reserve(points_.size());
    for (const TrendPoint& point : points_) {
        columns.push_back(columnOf(point));
    }
    showColumns(std::move(columns), granularity);
}

bool TrendChart::opensDays() const {
    return granularity_ == TrendGranularity::day && Chart::opensDays();
}

ChartColumn TrendChart::columnOf(const TrendPoint& point) const {
    ChartColumn column{point.periodStart, isKnown(point.status), {}};
    if (!column.isFetched) {
        return column;
    }
    // Refunds look alike whichever app they are of: stacked, they are one bar.
    double refunds = 0;
    for (const TrendSlice& slice : point.slices) {
        column.bars.push_back(usesSeriesColors_
                                  ? ChartBar{slice.proceeds, ChartInk::series, seriesColor(slice.colorIndex)}
                                  : ChartBar{slice.proceeds, ChartInk::proceeds, {}});
        refunds += slice.refunds;
    }
    if (refunds < 0) {
        column.bars.push_back({refunds, ChartInk::refunds, {}});
    }
    return column;
}

ChartAnnotation TrendChart::annotationOf(std::size_t column) const {
    const TrendPoint& point = points_[column];
    ChartAnnotation annotation{fromUtf8(bucketLabel(context().locale, point.periodStart, granularity_)),
                               statusLabel(point.status).text, sliceLines(point)};
    std::ranges::copy(refundLine(sumsOf(column).refunds), std::back_inserter(annotation.amounts));
    return annotation;
}

std::vector<ChartAmount> TrendChart::sliceLines(const TrendPoint& point) const {
    std::vector<ChartAmount> lines;
    for (const TrendSlice& slice : point.slices) {
        if (slice.proceeds > 0) {
            ChartAmount line = chartAmount(
                slice.proceeds, slice.appID ? shownText(slice.title, titleCharacters) : otherAppsLabel());
            line.hasDot = usesSeriesColors_;
            line.dot = seriesColor(slice.colorIndex);
            line.isSmall = true;
            lines.push_back(std::move(line));
        }
    }
    if (lines.size() > mostSlices) {
        const auto others = static_cast<int>(lines.size() - mostSlices);
        lines.resize(mostSlices);
        const QString text =
            tr("%1 more app(s)", nullptr, others).arg(fromUtf8(context().locale.count(others)));
        lines.push_back({.title = text, .spoken = text, .tone = Tone::Tertiary, .isSmall = true});
    }
    return lines;
}

Chart::Sums TrendChart::sumsOf(std::size_t column) const {
    Sums sums;
    for (const TrendSlice& slice : points_[column].slices) {
        sums.proceeds += slice.proceeds;
        sums.refunds += slice.refunds;
    }
    return sums;
}

}  // namespace vantrell
