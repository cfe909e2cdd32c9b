#pragma once

#include "sample/Catalogue.h"
#include "sample/Money.h"
#include "sample/SaleLine.h"

#include <string_view>

namespace vantrell::sample {

/// How the program is expected to count a line.
enum class UnitKind { app, inApp, update, redownload };

[[nodiscard]] UnitKind unitKind(const Item& item, Action action);

/// The service's code, such as "1F" or "IAY-M".
[[nodiscard]] std::string_view productType(const Item& item, Action action);

/// Whether money changes hands.
[[nodiscard]] bool isPaid(const Item& item, Action action);

/// What one unit costs the customer, never negative.
[[nodiscard]] Money customerPrice(const Item& item, const SaleKey& key);

/// What the seller gets for one unit, never negative: the price without tax, less the store's share.
[[nodiscard]] Money proceedsPerUnit(const Item& item, const SaleKey& key);

/// Code of the currency of price and proceeds.
[[nodiscard]] std::string_view currencyOf(const SaleKey& key);

}  // namespace vantrell::sample
