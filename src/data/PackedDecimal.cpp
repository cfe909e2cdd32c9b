#include "PackedDecimal.h"

#include <limits>

namespace vantrell {
namespace {

constexpr int placesBits = 4;
constexpr int maxPlaces = (1 << placesBits) - 1;
constexpr std::int64_t maxCoefficient = std::numeric_limits<std::int64_t>::max() >> placesBits;

}  // namespace

std::optional<std::int64_t> packedDecimal(const Decimal& value) {
    const auto parts = value.parts();
    if (!parts || parts->exponent < -maxPlaces) {
        return std::nullopt;
    }
    std::int64_t coefficient = parts->coefficient;
    for (int exponent = parts->exponent; exponent > 0; --exponent) {
        if (coefficient > maxCoefficient / 10 || coefficient < -maxCoefficient / 10) {
            return std::nullopt;
        }
        coefficient *= 10;
    }
    if (coefficient > maxCoefficient || coefficient < -maxCoefficient) {
        return std::nullopt;
    }
    const int places = parts->exponent < 0 ? -parts->exponent : 0;
    return coefficient * (1 << placesBits) + places;
}

Decimal readDecimal(const SqliteStatement& statement, int column) {
    if (statement.isText(column)) {
        return Decimal::parse(statement.text(column)).value_or(Decimal());
    }
    const std::int64_t number = statement.integer(column);
    if (number == 0) {
        return {};  // every line of a free app
    }
    return Decimal::scaled(number >> placesBits, -static_cast<int>(number & maxPlaces));
}

std::string decimalTextSQL(const std::string& column) {
    const std::string places = "(" + column + " & 15)";
    const std::string digits = "printf('%0*d', " + places + " + 1, abs(" + column + " >> 4))";
    return "CASE WHEN typeof(" + column + ") = 'text' THEN " + column + " ELSE iif(" + column +
           " < 0, '-', '') || iif(" + places + " = 0, abs(" + column + " >> 4), substr(" + digits +
           ", 1, length(" + digits + ") - " + places + ") || '.' || substr(" + digits + ", -" + places +
           ")) END";
}

std::string decimalDamageSQL(const std::string& column) {
    return "CASE typeof(" + column + ") WHEN 'integer' THEN FALSE WHEN 'text' THEN " + column +
           " GLOB '*[^-.0-9]*' OR " + column + " NOT GLOB '*[0-9]*' OR substr(" + column +
           ", 2) GLOB '*-*' OR " + column + " GLOB '*.*.*' ELSE TRUE END";
}

}  // namespace vantrell
