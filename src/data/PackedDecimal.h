#pragma once

#include "Sqlite.h"
#include "base/Decimal.h"

#include <cstdint>
#include <optional>
#include <string>

namespace vantrell {

/// How an exact decimal lies in a column: as the integer `coefficient * 16 + places` where up to 15 decimal
/// places and 59 bits suffice, which is nearly always, and as exact text otherwise. This is the integer.
[[nodiscard]] std::optional<std::int64_t> packedDecimal(const Decimal& value);

/// What can't be read as a number is 0.
[[nodiscard]] Decimal readDecimal(const SqliteStatement& statement, int column);

/// An SQL expression that gives the exact decimal text of such a column: "-12.5".
[[nodiscard]] std::string decimalTextSQL(const std::string& column);
/// One that is true where such a column holds no decimal.
[[nodiscard]] std::string decimalDamageSQL(const std::string& column);

}  // namespace vantrell
