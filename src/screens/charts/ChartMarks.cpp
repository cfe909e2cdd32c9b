#include "screens/charts/ChartMarks.h"

#include <algorithm>
#include <cmath>

namespace vantrell {
namespace {

constexpr double barShare = 0.72;
constexpr double widestBar = 56;
// Of so few pixels, all belong to the bar: gaps that are now one and now two pixels wide would be all that
// one sees.
constexpr double narrowSlot = 3.5;

class MarkMaker {
  public:
    MarkMaker(const ChartContent& content, const ChartFrame& frame) : content_(content), frame_(frame) {}

    [[nodiscard]] double y(double value) const {
        return frame_.snapped(frame_.plot.bottom() - content_.scale.place(value) * frame_.plot.height());
    }

    void addBars(std::size_t number, std::vector<BarMark>& marks) const {
        double above = 0;
        double below = 0;
        for (const ChartBar& bar : content_.columns[number].bars) {
            double& reached = bar.value < 0 ? below : above;
            const double from = std::exchange(reached, reached + bar.value);
            if (bar.value != 0) {
                marks.push_back({area(number, from, reached), bar.ink, bar.color});
            }
        }
    }

  private:
    // However little it is, what moved money is seen.
    [[nodiscard]] QRectF area(std::size_t number, double from, double to) const {
        const auto [left, right] = frame_.barEnds(number);
        const double start = y(from);
        const double end = y(to);
        const bool isUp = to >= from;
        const double height = std::max(std::abs(end - start), frame_.pixel);
        return {left, isUp ? start - height : start, right - left, height};
    }

    const ChartContent& content_;
    const ChartFrame& frame_;
};

}  // namespace

double ChartFrame::center(std::size_t column) const {
    return plot.left() + plot.width() * (static_cast<double>(column) + 0.5) / static_cast<double>(columns);
}

std::optional<std::size_t> ChartFrame::columnAt(double x) const {
    if (columns == 0 || !(x >= plot.left() && x < plot.right())) {
        return std::nullopt;
    }
    const double share = (x - plot.left()) / plot.width();
    return std::min(static_cast<std::size_t>(share * static_cast<double>(columns)), columns - 1);
}

bool ChartFrame::isDense() const {
    return plot.width() / pixel < narrowSlot * static_cast<double>(columns);
}

double ChartFrame::barWidth() const {
    const double slot = plot.width() / static_cast<double>(columns) / pixel;
    const double width = isDense() ? slot : std::min(std::round(slot * barShare), std::floor(slot) - 1);
    return std::clamp(width, 1.0, std::round(widestBar / pixel)) * pixel;
}

std::pair<double, double> ChartFrame::barEnds(std::size_t column) const {
    const double width = barWidth();
    const double left = center(column) - width / 2;
    const double right = isDense() ? snapped(left + width) : snapped(left) + width;
    return {snapped(left), std::max(right, snapped(left) + pixel)};
}

double ChartFrame::snapped(double place) const {
    return std::round(place / pixel) * pixel;
}

ChartMarks chartMarks(const ChartContent& content, const ChartFrame& frame) {
    const MarkMaker maker(content, frame);
    ChartMarks marks;
    marks.zero = maker.y(0);
    for (const double step : content.scale.marks()) {
        marks.steps.push_back(maker.y(step));
    }
    for (std::size_t number = 0; number < content.columns.size(); ++number) {
        if (content.columns[number].isFetched) {
            maker.addBars(number, marks.bars);
        } else {
            marks.rules.push_back(frame.center(number));
        }
    }
    return marks;
}

}  // namespace vantrell
