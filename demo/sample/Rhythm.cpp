#include "sample/Rhythm.h"

#include "sample/Random.h"

#include <array>

namespace vantrell::sample {

namespace {

constexpr std::array<std::uint64_t, 12> growthByYear{120, 340,  520,  680,  800,  890,
                                                     970, 1030, 1080, 1120, 1150, 1170};
constexpr std::int64_t daysPerYear = 365;

// From Sunday, as the standard library counts.
constexpr std::array<std::uint64_t, 7> byWeekday{1160, 920, 890, 900, 930, 1000, 1190};
// From January.
constexpr std::array<std::uint64_t, 12> byMonth{1130, 1040, 1000, 980,  950,  900,
                                                880,  900,  960,  1000, 1060, 1200};
// People unpack new devices from the 24th on.
constexpr std::uint64_t christmasWeek = 1500;

}  // namespace

std::uint64_t grownTo(Day day) {
    const auto age = (day - accountOpened).count();
    if (age < 0) {
        return 0;
    }
    const auto year = static_cast<std::size_t>(age / daysPerYear);
    if (year + 1 >= growthByYear.size()) {
        return growthByYear.back();
    }
    const auto rise = growthByYear[year + 1] - growthByYear[year];
    return growthByYear[year] + rise * static_cast<std::uint64_t>(age % daysPerYear) / daysPerYear;
}

std::uint64_t busyness(Day day) {
    const std::chrono::year_month_day date{day};
    const auto month = static_cast<unsigned>(date.month()) - 1;
    const bool christmas = month == 11 && static_cast<unsigned>(date.day()) >= 24;
    const auto weekday = byWeekday[std::chrono::weekday{day}.c_encoding()];
    return weekday * (christmas ? christmasWeek : byMonth[month]) / 1000;
}

bool isQuiet(std::uint64_t seed, Day day) {
    if (day < accountOpened) {
        return true;
    }
    const std::chrono::year_month_day date{day};
    const auto quarter = (static_cast<unsigned>(date.month()) - 1) / 3;
    const auto start = date.year() / std::chrono::month{quarter * 3 + 1} / std::chrono::day{1};
    Random random{seed ^ static_cast<std::uint64_t>(Day{start}.time_since_epoch().count()) << 20U};
    return day == Day{start} + std::chrono::days{static_cast<int>(random.below(90))};
}

}  // namespace vantrell::sample
