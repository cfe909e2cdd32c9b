#include "screens/charts/DailyProceedsChart.h"

#include "screens/components/ShownText.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace vantrell {
namespace {

ChartColumn columnOf(const DayPoint& point) {
    ChartColumn column{point.day, isKnown(point.status), {}};
    if (column.isFetched) {
        column.bars = {{point.proceeds, ChartInk::proceeds, {}}};
        if (point.refunds < 0) {
            column.bars.push_back({point.refunds, ChartInk::refunds, {}});
        }
    }
    return column;
}

}  // namespace

DailyProceedsChart::DailyProceedsChart(const FigureContext& context, QString title, QObject* parent)
    : Chart(context, std::move(title), parent) {}

void DailyProceedsChart::show(std::vector<DayPoint> points) {
    points_ = std::move(points);
    std::vector<ChartColumn> columns;
    columns.reserve(points_.size());
    std::ranges::transform(points_, std::back_inserter(columns), columnOf);
    showColumns(std::move(columns), TrendGranularity::day);
}

ChartAnnotation DailyProceedsChart::annotationOf(std::size_t column) const {
    const DayPoint& point = points_[column];
    ChartAnnotation annotation{
        fromUtf8(context().locale.weekdayMonthDay(point.day)), statusLabel(point.status).text, {}};
    if (isKnown(point.status)) {
        annotation.amounts.push_back(chartAmount(point.proceeds));
    }
    std::ranges::copy(refundLine(point.refunds), std::back_inserter(annotation.amounts));
    return annotation;
}

Chart::Sums DailyProceedsChart::sumsOf(std::size_t column) const {
    return {points_[column].proceeds, points_[column].refunds};
}

}  // namespace vantrell
