#pragma once

#include <string_view>

#include <unicode/locid.h>

namespace vantrell {

/// The library's locale for a POSIX name such as "sr_RS.UTF-8@latin". Of modifiers, scripts and
/// "currency=CODE" count. English without a region for a name that has no known language, such as "C": the
/// library itself would take the locale of the process for it.
[[nodiscard]] icu::Locale icuLocale(std::string_view posixName);

}  // namespace vantrell
