#pragma once

#include "base/Instant.h"
#include "base/LocalTime.h"
#include "sample/Days.h"
#include "sample/ReportPeriods.h"

#include <string_view>

namespace vantrell::sample {

enum class Availability { notYet, published, noLonger };

/// When reports come out and how long they are kept: days, weeks and months for a year, years for ten,
/// finance reports for good. Goes by Pacific time.
class Publication {
  public:
    Publication();

    [[nodiscard]] Availability availability(ReportKind kind, const DateRange& days, Instant now) const;

    /// The day in California.
    [[nodiscard]] Day today(Instant now) const;

  private:
    TimeZone pacific_;
};

/// The only version in which a sales report can be had: "1_1" for most days and "1_0" for most longer
/// reports, but on some the other one, as when the service changes over.
[[nodiscard]] std::string_view versionOf(ReportKind kind, const DateRange& days);

}  // namespace vantrell::sample
