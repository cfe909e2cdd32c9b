#include "sample/SampleTotals.h"

#include "sample/Payouts.h"
#include "sample/SaleTerms.h"
#include "sample/Territories.h"

#include <algorithm>

namespace vantrell::sample {

namespace {

void add(MoneyByCurrency& sums, const Money& amount, std::string_view currency) {
    auto& sum = sums.try_emplace(std::string{currency}, Money{0, amount.digits}).first->second;
    sum.minor += amount.minor;
}

std::int64_t& counter(SalesTotals& totals, UnitKind kind) {
    switch (kind) {
        case UnitKind::app:
            return totals.appUnits;
        case UnitKind::inApp:
            return totals.inAppUnits;
        case UnitKind::update:
            return totals.updateUnits;
        case UnitKind::redownload:
            return totals.redownloadUnits;
    }
    return totals.appUnits;
}

bool belongsTo(const SampleAccount& account, const Item& item, std::optional<std::int64_t> appleID) {
    if (!appleID || item.appleID == *appleID) {
        return true;
    }
    const auto app = std::ranges::find(account.items(), *appleID, &Item::appleID);
    return app != account.items().end() && item.parentSKU == app->sku;
}

}  // namespace

SalesTotals salesTotals(const SampleAccount& account, const DateRange& range,
                        std::optional<std::int64_t> appleID) {
    SalesTotals totals;
    for (const auto& [key, units] : account.sales(range)) {
        const auto& item = account.items()[key.item];
        if (!belongsTo(account, item, appleID)) {
            continue;
        }
        if (units < 0) {
            totals.refundedUnits -= units;
        } else {
            counter(totals, unitKind(item, key.action)) += units;
        }
        const auto proceeds = proceedsPerUnit(item, key);
        if (proceeds.minor != 0) {
            add(totals.proceeds, {proceeds.minor * units, proceeds.digits}, currencyOf(key));
        }
    }
    return totals;
}

PayoutTotals payoutTotals(const SampleAccount& account, const DateRange& range,
                          std::optional<std::int64_t> appleID) {
    PayoutTotals totals;
    for (const auto& line : payouts(account, range)) {
        if (!belongsTo(account, account.items()[line.item], appleID)) {
            continue;
        }
        if (line.isReturn) {
            totals.returns -= line.quantity;
        } else {
            totals.units += line.quantity;
        }
        const auto& currency = currencyNamed(territories()[line.territory].currency);
        add(totals.paid, {line.extendedShare(), currency.digits}, currency.code);
    }
    return totals;
}

}  // namespace vantrell::sample
