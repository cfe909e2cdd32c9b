#pragma once

#include "RelativeTime.h"

#include <string>

#include <unicode/locid.h>
#include <unicode/reldatefmt.h>

namespace vantrell {

/// The words of a locale for distances in time, such as "yesterday" or "in 3 minutes".
class RelativeTimeWords {
  public:
    explicit RelativeTimeWords(const icu::Locale& locale);
    [[nodiscard]] std::string text(const RelativeTime& time) const;

  private:
    RelativeTimeWords(const icu::Locale& locale, UErrorCode status);
    icu::RelativeDateTimeFormatter format_;
};

}  // namespace vantrell
