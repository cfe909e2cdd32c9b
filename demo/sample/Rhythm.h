#pragma once

#include "sample/Days.h"

#include <cstdint>

namespace vantrell::sample {

/// The day of the account's first sale.
inline constexpr Day accountOpened = dayOf(2020, 5, 12);

/// How large the account has become by `day`, in thousandths of what it is after six or seven years. It
/// grows fast at first and levels off, so that it stays believable for as long as anybody tries it.
[[nodiscard]] std::uint64_t grownTo(Day day);

/// How busy `day` is by weekday and season, in thousandths of an ordinary one.
[[nodiscard]] std::uint64_t busyness(Day day);

/// One day a quarter nothing is sold at all, and before the account opened.
[[nodiscard]] bool isQuiet(std::uint64_t seed, Day day);

}  // namespace vantrell::sample
