#include "reports/ReportValues.h"
#include "testing/Cases.h"

#include <QDateTime>
#include <QTimeZone>

namespace vantrell {
namespace {

using testing::expectCases;
using Text = const std::string&;

const std::string tables = VANTRELL_TEST_DATA "/values/";

TEST(ReportDate, IsNoonUtcOfMonthDayYearAndAnythingElseIsNone) {
    expectCases<1>(tables + "dates.tsv", [](Text text) {
        const auto date = parseReportDate(text);
        const auto seconds = std::chrono::floor<std::chrono::seconds>(date.value_or(distantPast));
        const auto shown =
            QDateTime::fromSecsSinceEpoch(seconds.time_since_epoch().count(), QTimeZone::utc());
        return date ? shown.toString(Qt::ISODate).toStdString() : "none";
    });
}

TEST(ReportCount, ReadsCountsWithoutTheirFractionsAndAnythingElseAsZero) {
    expectCases<1>(tables + "counts.tsv", [](Text text) {
        const auto count = parseReportCount(text);
        return std::to_string(count.value) + (count.fits ? "" : " at most");
    });
}

TEST(ReportDecimal, IsExactAndKnowsOnlyThePoint) {
    expectCases<1>(tables + "decimals.tsv", [](Text text) { return parseReportDecimal(text).text(); });
}

TEST(AppleIdentifier, IsDigitsOnly) {
    expectCases<1>(tables + "identifiers.tsv",
                   [](Text text) { return std::to_string(parseAppleIdentifier(text)); });
}

}  // namespace
}  // namespace vantrell
