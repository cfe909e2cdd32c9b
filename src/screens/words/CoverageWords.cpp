#include "screens/words/CoverageWords.h"

#include "screens/components/ShownText.h"
#include "screens/words/StatusLabel.h"
#include "screens/words/UnitsCaption.h"

#include <QCoreApplication>
#include <QStringList>

namespace vantrell {
namespace {

class CoverageWords {
    Q_DECLARE_TR_FUNCTIONS(CoverageWords)
};

QString knownOfDays(const Locale& locale, const DayCounts& days) {
    return CoverageWords::tr("%1 of %2 days", nullptr, days.days)
        .arg(fromUtf8(locale.count(days.known)), fromUtf8(locale.count(days.days)));
}

}  // namespace

QString coverageText(const Locale& locale, const Coverage& coverage) {
    constexpr int months = monthsOfBackfill;
    return QStringList{
        knownOfDays(locale, coverage.days),
        CoverageWords::tr("%1 of %2 months", nullptr, months)
            .arg(fromUtf8(locale.count(coverage.knownMonths)), fromUtf8(locale.count(months))),
        CoverageWords::tr("%1 years", nullptr, coverage.years).arg(fromUtf8(locale.count(coverage.years))),
        CoverageWords::tr("%1 payout periods", nullptr, coverage.payoutPeriods)
            .arg(fromUtf8(locale.count(coverage.payoutPeriods)))}
        .join(captionJoiner());
}

QString knownDaysText(const Locale& locale, const DayCounts& days) {
    return days.known == days.days ? QString() : knownOfDays(locale, days);
}

QString lackingDaysText(const Locale& locale, const DayCounts& days) {
    QStringList parts;
    if (days.failed > 0) {
        parts += CoverageWords::tr("%1 days failed", nullptr, days.failed)
                     .arg(fromUtf8(locale.count(days.failed)));
    }
    if (days.missing > 0) {
        parts += CoverageWords::tr("%1 days not fetched", nullptr, days.missing)
                     .arg(fromUtf8(locale.count(days.missing)));
    }
    return parts.join(captionJoiner());
}

QString coveredText(ReportStatus status) {
    switch (status) {
        case ReportStatus::ok:
            return CoverageWords::tr("Sales");
        case ReportStatus::error:
            return CoverageWords::tr("Failed");
        default:
            return statusLabel(status).text;
    }
}

}  // namespace vantrell
