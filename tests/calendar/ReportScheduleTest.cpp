#include "calendar/ReportSchedule.h"
#include "testing/Cases.h"

namespace vantrell {
namespace {

TEST(ReportSchedule, ADayIsAskedForByItsStoredStatusAndAge) {
    testing::expectCases<2>(VANTRELL_TEST_DATA "/due.tsv",
                            [](const std::string& stored, const std::string& age) {
                                const ReportStatus status = reportStatus(stored);
                                return std::string(isDayDue(status, std::stoi(age)) ? "due" : "not due") +
                                       (isFinal(status) ? ", final" : "");
                            });
}

}  // namespace
}  // namespace vantrell
