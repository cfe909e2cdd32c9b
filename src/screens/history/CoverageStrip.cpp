#include "screens/history/CoverageStrip.h"

#include "figures/Trends.h"
#include "screens/components/ShownText.h"
#include "screens/words/CoverageWords.h"
#include "screens/words/UnitsCaption.h"

#include <algorithm>
#include <array>
#include <utility>

#include <QStringList>

namespace vantrell {
namespace {

constexpr int weekLength = 7;

constexpr std::array legendOrder{ReportStatus::ok,    ReportStatus::empty,   ReportStatus::pending,
                                 ReportStatus::error, ReportStatus::missing, ReportStatus::unavailable};

/// How many days of the first week lie before the strip.
int missingAtFront(const std::vector<CoveredDay>& days, const Locale& locale) {
    const CivilDate first = days.front().day;
    const CivilDate begin = trendPeriodStart(first, TrendGranularity::week, locale.firstWeekday());
    return static_cast<int>((std::chrono::sys_days(first) - std::chrono::sys_days(begin)).count());
}

}  // namespace

CoverageStrip::CoverageStrip(const Locale& locale, QObject* parent) : QObject(parent), locale_(locale) {}

void CoverageStrip::show(const std::vector<CoveredDay>& days) {
    std::vector<StripDay> shown;
    shown.reserve(days.size());
    int place = days.empty() ? 0 : missingAtFront(days, locale_);
    for (const CoveredDay& day : days) {
        shown.push_back({place / weekLength, place % weekLength, fromUtf8(rawText(day.status)),
                         fromUtf8(locale_.weekdayDate(day.day)) + captionJoiner() + coveredText(day.status)});
        ++place;
    }
    days_.show(shown);
    showMonths(days);
    showCounts(days);
    selection_ = std::min(selection_, days_.count() - 1);
    Q_EMIT changed();
}

int CoverageStrip::weeks() const {
    return days_.count() == 0 ? 0 : days_.at<StripDay>(static_cast<std::size_t>(days_.count()) - 1).week + 1;
}

StripDay CoverageStrip::selected() const {
    return selection_ < 0 ? StripDay() : days_.at<StripDay>(static_cast<std::size_t>(selection_));
}

QString CoverageStrip::summary() const {
    QStringList texts;
    for (int place = 0; place < counts_.count(); ++place) {
        texts += counts_.at<StripCount>(static_cast<std::size_t>(place)).text;
    }
    return texts.join(captionJoiner());
}

void CoverageStrip::selectAt(int week, int weekday) {
    const bool isInWeek = days_.count() > 0 && weekday >= 0 && weekday < weekLength;
    const int place = isInWeek ? week * weekLength + weekday - days_.at<StripDay>(0).weekday : -1;
    select(place < days_.count() ? place : -1);
}

void CoverageStrip::moveByDays(int days) {
    if (days_.count() == 0) {
        return;
    }
    // The latest is the one that a newcomer to the strip wants to know of.
    select(selection_ < 0 ? days_.count() - 1 : std::clamp(selection_ + days, 0, days_.count() - 1));
}

void CoverageStrip::select(int place) {
    if (std::exchange(selection_, std::max(place, -1)) != place) {
        Q_EMIT changed();
    }
}

void CoverageStrip::showMonths(const std::vector<CoveredDay>& days) {
    std::vector<StripMonth> months;
    for (std::size_t place = 0; place < days.size(); ++place) {
        if (days[place].day.day() == std::chrono::day(1)) {
            months.push_back({days_.at<StripDay>(place).week, fromUtf8(locale_.shortMonth(days[place].day))});
        }
    }
    months_.show(months);
}

void CoverageStrip::showCounts(const std::vector<CoveredDay>& days) {
    std::vector<StripCount> counts;
    for (const ReportStatus status : legendOrder) {
        const auto count = std::ranges::count(days, status, &CoveredDay::status);
        if (count > 0) {
            counts.push_back({fromUtf8(rawText(status)),
                              coveredText(status) + QStringLiteral(" ") + fromUtf8(locale_.count(count))});
        }
    }
    counts_.show(counts);
}

}  // namespace vantrell
