#include "calendar/ReportSchedule.h"

#include <gtest/gtest.h>

namespace vantrell {
namespace {

TEST(ReportSchedule, ADayIsAskedForByItsStoredStatusAndAge) {
    using enum ReportStatus;
    const struct {
        ReportStatus stored;
        bool dueAtOne;
        bool dueAtThree;
        bool dueAtFour;
        bool final;
    } table[] = {
        {ok, false, false, false, true},
        {unavailable, false, false, false, true},
        {empty, true, true, false, false},
        {pending, true, true, true, false},
        {ReportStatus::error, true, true, true, false},
        {missing, true, true, true, false},
    };
    for (const auto& row : table) {
        EXPECT_EQ(isDayDue(row.stored, 1), row.dueAtOne) << rawText(row.stored);
        EXPECT_EQ(isDayDue(row.stored, 3), row.dueAtThree) << rawText(row.stored);
        EXPECT_EQ(isDayDue(row.stored, 4), row.dueAtFour) << rawText(row.stored);
        EXPECT_EQ(isFinal(row.stored), row.final) << rawText(row.stored);
    }
}

}  // namespace
}  // namespace vantrell
