#pragma once

#include "calendar/ReportSchedule.h"
#include "figures/Coverage.h"
#include "locale/Locale.h"

#include <QString>

namespace vantrell {

/// How much is stored, such as "312 of 365 days · 12 of 12 months · 17 years · 36 payout periods".
[[nodiscard]] QString coverageText(const Locale& locale, const Coverage& coverage);
/// "6 of 7 days"; empty where all are known.
[[nodiscard]] QString knownDaysText(const Locale& locale, const DayCounts& days);
/// What lacks of the days that figures are made of, such as "3 days failed"; empty where nothing does.
[[nodiscard]] QString lackingDaysText(const Locale& locale, const DayCounts& days);
/// What is known of a day: "Sales" or "Failed", else as rows say it.
[[nodiscard]] QString coveredText(ReportStatus status);

}  // namespace vantrell
