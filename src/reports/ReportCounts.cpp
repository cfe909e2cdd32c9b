#include "ReportCounts.h"

#include "ReportValues.h"

namespace vantrell {

std::int64_t ReportCounts::read(std::string_view cell) {
    const ReportCount count = parseReportCount(cell);
    allFit_ = allFit_ && count.fits;
    const bool overflows = count.value < 0 ? __builtin_sub_overflow(sum_, count.value, &sum_)
                                           : __builtin_add_overflow(sum_, count.value, &sum_);
    sumFits_ = sumFits_ && !overflows;
    return count.value;
}

std::string ReportCounts::note() const {
    if (!allFit_) {
        return "A count is too large; the largest that can be kept stands in its place.";
    }
    return sumFits_ ? ""
                    : "The counts add up to more than can be shown; the largest that can be stands for them.";
}

}  // namespace vantrell
