#include "screens/charts/ChartScale.h"

#include <cmath>

namespace vantrell {
namespace {

constexpr int mostSteps = 5;

// What binary fractions make too much of must not cost another step.
constexpr double tolerance = 1e-9;

ChartScale scaleOf(double step, double lowest, double highest) {
    return {step, static_cast<int>(std::floor(-lowest / step + tolerance)),
            static_cast<int>(std::ceil(highest / step - tolerance)), lowest};
}

}  // namespace

std::vector<double> ChartScale::marks() const {
    std::vector<double> marks;
    for (int number = -stepsBelow; number <= stepsAbove; ++number) {
        marks.push_back(number * step);
    }
    return marks;
}

double ChartScale::place(double value) const {
    const double highest = stepsAbove * step;
    return highest > lowest ? (value - lowest) / (highest - lowest) : 0;
}

ChartScale niceScale(double lowest, double highest) {
    // Smaller amounts than any currency has, and sums beyond a double.
    constexpr double least = 1e-9;
    constexpr double greatest = 1e300;
    const double span = highest - lowest;
    if (!(span > least && span < greatest)) {
        return {};
    }
    for (double power = std::pow(10, std::floor(std::log10(span)) - 1);; power *= 10) {
        for (const double factor : {1.0, 2.0, 2.5, 5.0}) {
            const ChartScale scale = scaleOf(power * factor, lowest, highest);
            if (scale.stepsBelow + scale.stepsAbove <= mostSteps) {
                return scale;
            }
        }
    }
}

}  // namespace vantrell
