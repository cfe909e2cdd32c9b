#include "sample/Publication.h"

#include <stdexcept>

namespace vantrell::sample {

namespace {

TimeZone pacificTime() {
    auto zone = TimeZone::named("America/Los_Angeles");
    if (!zone) {
        throw std::runtime_error("the time zone database has no America/Los_Angeles");
    }
    return *zone;
}

std::chrono::days delay(ReportKind kind) {
    switch (kind) {
        case ReportKind::daily:
        case ReportKind::weekly:
            return std::chrono::days{1};
        case ReportKind::monthly:
            return std::chrono::days{5};
        case ReportKind::yearly:
            return std::chrono::days{6};
        case ReportKind::finance:
            return std::chrono::days{33};
    }
    return {};
}

bool isForgotten(ReportKind kind, const DateRange& days, Day today) {
    const std::chrono::year_month_day date{today};
    if (kind == ReportKind::finance) {
        return false;
    }
    if (kind == ReportKind::yearly) {
        return std::chrono::year_month_day{days.first}.year() < date.year() - std::chrono::years{10};
    }
    // Counted so, rather than as the same date of last year, 29 February needs no rule of its own.
    constexpr std::chrono::days yearAtMost{366};
    return days.last < today - yearAtMost;
}

}  // namespace

Publication::Publication() : pacific_(pacificTime()) {}

Availability Publication::availability(ReportKind kind, const DateRange& days, Instant now) const {
    constexpr std::chrono::hours fromNoonBackToFive{7};
    if (now < pacific_.noonOf(days.last + delay(kind)) - fromNoonBackToFive) {
        return Availability::notYet;
    }
    return isForgotten(kind, days, today(now)) ? Availability::noLonger : Availability::published;
}

Day Publication::today(Instant now) const {
    return Day{pacific_.dateAt(now)};
}

std::string_view versionOf(ReportKind kind, const DateRange& days) {
    constexpr std::string_view older = "1_0";
    constexpr std::string_view newer = "1_1";
    const std::chrono::year_month_day date{days.last};
    switch (kind) {
        case ReportKind::daily:
            return static_cast<unsigned>(date.day()) == 11 ? older : newer;
        case ReportKind::monthly:
            return date.month() == std::chrono::March ? newer : older;
        case ReportKind::yearly:
            return date.year().is_leap() ? newer : older;
        case ReportKind::weekly:
        case ReportKind::finance:
            return older;
    }
    return older;
}

}  // namespace vantrell::sample
