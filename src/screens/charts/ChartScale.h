#pragma once

#include <vector>

namespace vantrell {

/// The axis of amounts: equal steps of a round number, zero among them. It ends with the step above the
/// highest value but just at the lowest, since refunds are few and their bars would get lost over a whole
/// step.
struct ChartScale {
    double step = 0;  ///< 0 if there is nothing to measure
    int stepsBelow = 0;
    int stepsAbove = 0;
    double lowest = 0;

    /// From the lowest to the highest; just 0 if there is nothing to measure.
    [[nodiscard]] std::vector<double> marks() const;
    /// Where `value` lies between the lower end (0) and the upper one (1).
    [[nodiscard]] double place(double value) const;
    bool operator==(const ChartScale&) const = default;
};

/// At most five steps for values from `lowest`, at most 0, to `highest`, at least 0.
[[nodiscard]] ChartScale niceScale(double lowest, double highest);

}  // namespace vantrell
