#pragma once

#include "calendar/ReportCalendar.h"
#include "locale/Locale.h"

#include <string>
#include <string_view>

#include <QString>

namespace vantrell {

/// "Yesterday", else abbreviated weekday, month and day; a key that is no date stays as it is.
[[nodiscard]] QString dayShortText(const ReportCalendar& calendar, const Locale& locale,
                                   const std::string& key);

/// The day written out, such as "Tuesday, Mar 3, 2026"; a key that is no date stays as it is.
[[nodiscard]] QString dayTitle(const Locale& locale, std::string_view key);

/// "Aug 2026" for the key "2026-08"; any other text stays as it is.
[[nodiscard]] QString monthKeyLabel(const Locale& locale, std::string_view key);

}  // namespace vantrell
