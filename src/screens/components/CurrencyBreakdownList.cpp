#include "screens/components/CurrencyBreakdownList.h"

#include "screens/components/RowText.h"
#include "screens/components/ShownText.h"

#include <algorithm>
#include <optional>
#include <utility>

#include <QCoreApplication>

namespace vantrell {
namespace {

struct Entry {
    std::string code;
    Decimal amount;
    std::optional<Decimal> converted;
};

std::vector<Entry> sortedEntries(const CurrencyConverter& converter, const AmountsByCurrency& byCurrency) {
    std::vector<Entry> entries;
    for (const auto& [code, amount] : byCurrency) {
        entries.push_back({code, amount, converter.convert(amount, code)});
    }
    std::ranges::stable_sort(entries, [](const Entry& left, const Entry& right) {
        return left.converted.value_or(Decimal()) > right.converted.value_or(Decimal());
    });
    return entries;
}

}  // namespace

QString BreakdownRow::copyText() const {
    return rowText({code, amount, converted});
}

std::vector<BreakdownRow> breakdownRows(const FigureContext& context, const AmountsByCurrency& byCurrency) {
    const CurrencyConverter& converter = context.store.converter();
    std::vector<BreakdownRow> rows;
    for (const Entry& entry : sortedEntries(converter, byCurrency)) {
        BreakdownRow row{.code = shownText(entry.code),
                         .amount = shownText(context.locale.money(entry.amount, entry.code)),
                         .spokenAmount = shownText(context.locale.spokenMoney(entry.amount, entry.code)),
                         .hasNoRate = !entry.converted};
        if (!entry.converted) {
            row.converted = QCoreApplication::translate("CurrencyBreakdownList", "no rate");
            row.spokenConverted = row.converted;
        } else if (entry.code != converter.displayCurrency) {
            row.converted = shownText(context.locale.money(*entry.converted, converter.displayCurrency));
            row.spokenConverted =
                shownText(context.locale.spokenMoney(*entry.converted, converter.displayCurrency));
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

}  // namespace vantrell
