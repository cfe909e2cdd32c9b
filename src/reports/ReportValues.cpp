#include "ReportValues.h"

#include "base/Whitespace.h"

#include <charconv>
#include <chrono>
#include <cstddef>
#include <limits>
#include <string>
#include <system_error>

namespace vantrell {
namespace {

/// All of `text` as a number, without regard to any locale; absent if it is none or doesn't fit.
template <typename Number>
std::optional<Number> wholeNumber(std::string_view text) {
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-')) {
            return std::nullopt;
        }
    }
    Number number = 0;
    const char* const end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stopped != end) {
        return std::nullopt;
    }
    return number;
}

bool isBetween(std::optional<std::int64_t> value, std::int64_t least, std::int64_t most) {
    return value && *value >= least && *value <= most;
}

/// The whole part of a number; absent for one that 64 bits don't hold, also for one that is none.
std::optional<std::int64_t> truncated(double value) {
    constexpr double limit = 0x1p63;
    return value >= -limit && value < limit ? std::optional(static_cast<std::int64_t>(value)) : std::nullopt;
}

/// `text` without commas and outer white space; `buffer` holds it if anything inside had to go.
std::string_view plainNumber(std::string_view text, std::string& buffer) {
    if (text.find(',') != std::string_view::npos) {
        buffer = text;
        std::erase(buffer, ',');
        text = buffer;
    }
    return trimWhitespace(text);
}

}  // namespace

std::optional<Instant> parseReportDate(std::string_view text) {
    const std::size_t first = text.find_first_not_of('/');
    if (first == std::string_view::npos) {
        return std::nullopt;
    }
    text = text.substr(first, text.find_last_not_of('/') + 1 - first);
    // Any further slash is left in the middle, where it makes the day no number.
    const std::size_t afterMonth = text.find('/');
    const std::size_t afterDay = text.rfind('/');
    if (afterMonth == afterDay) {
        return std::nullopt;
    }
    const auto month = wholeNumber<std::int64_t>(text.substr(0, afterMonth));
    const auto day = wholeNumber<std::int64_t>(text.substr(afterMonth + 1, afterDay - afterMonth - 1));
    const auto year = wholeNumber<std::int64_t>(text.substr(afterDay + 1));
    if (!isBetween(month, 1, 12) || !isBetween(day, 1, 31) || !isBetween(year, 2001, 2199)) {
        return std::nullopt;
    }
    const std::chrono::sys_days firstOfMonth =
        std::chrono::year(static_cast<int>(*year)) / std::chrono::month(static_cast<unsigned>(*month)) / 1;
    return firstOfMonth + std::chrono::days(*day - 1) + std::chrono::hours(12);
}

ReportCount parseReportCount(std::string_view text) {
    std::string buffer;
    const std::string_view number = plainNumber(text, buffer);
    if (const auto integer = wholeNumber<std::int64_t>(number)) {
        return {*integer};
    }
    if (const auto integer = truncated(wholeNumber<double>(number).value_or(0))) {
        // The number may also be one that a double can't hold.
        const auto exact = *integer == 0 ? Decimal::parse(number) : std::nullopt;
        if (!exact || (*exact > Decimal(-1) && *exact < Decimal(1))) {
            return {*integer};
        }
    }
    const auto large = Decimal::parse(number);
    if (!large) {
        return {};  // an infinity, or not a number
    }
    using Limits = std::numeric_limits<std::int64_t>;
    return {large->isNegative() ? Limits::min() : Limits::max(), false};
}

Decimal parseReportDecimal(std::string_view text) {
    std::string buffer;
    return Decimal::parse(plainNumber(text, buffer)).value_or(Decimal());
}

std::int64_t parseAppleIdentifier(std::string_view text) {
    return wholeNumber<std::int64_t>(text).value_or(0);
}

}  // namespace vantrell
