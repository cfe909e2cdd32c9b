#include "calendar/YearMonth.h"

#include "base/WholeNumber.h"

#include <algorithm>

namespace vantrell {
namespace {

/// What stands before the next dash, with dashes in front dropped; takes it off `text`.
std::string_view takePiece(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of('-'), text.size()));
    const auto piece = text.substr(0, text.find('-'));
    text.remove_prefix(piece.size());
    return piece;
}

}  // namespace

std::optional<YearMonth> parseYearMonth(std::string_view text) {
    const auto year = wholeNumber(takePiece(text));
    const auto month = wholeNumber(takePiece(text));
    const bool more = !takePiece(text).empty();
    if (!year || !month || more || *month < 1 || *month > 12) {
        return std::nullopt;
    }
    return YearMonth{*year, *month};
}

std::string yearMonthText(YearMonth month) {
    return zeroPadded(month.year, 4) + "-" + zeroPadded(month.month, 2);
}

std::string zeroPadded(std::int64_t number, std::size_t width) {
    auto text = std::to_string(number);
    return text.insert(0, width - std::min(width, text.size()), '0');
}

}  // namespace vantrell
