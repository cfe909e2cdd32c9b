#pragma once

#include "base/Instant.h"
#include "base/LocalTime.h"

namespace vantrell {

/// How far a moment lies from now, in the largest unit of which at least a whole one lies between.
struct RelativeTime {
    enum class Unit { second, minute, hour, day, week, month, year };

    Unit unit;
    /// Whole units; below 0 for the past, and 0 only within a second.
    int count;
    /// Whether the calendar in the zone agrees, so that a count of one may be called "last week". A moment
    /// eight days ago can lie in the week before the last.
    bool isOnCalendar;

    /// Up to a day the time that passes counts. From there on the days of the calendar in `zone` do, so that
    /// "yesterday" is always the day before; weeks begin on `firstWeekday`.
    [[nodiscard]] static RelativeTime between(Instant then, Instant now, const TimeZone& zone,
                                              std::chrono::weekday firstWeekday);
    friend bool operator==(const RelativeTime&, const RelativeTime&) = default;
};

}  // namespace vantrell
