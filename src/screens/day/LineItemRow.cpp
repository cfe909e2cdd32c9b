#include "screens/day/LineItemRow.h"

#include "screens/components/RowText.h"
#include "screens/components/ShownText.h"
#include "screens/words/SalesWords.h"
#include "screens/words/UnitsCaption.h"

#include <QStringList>

namespace vantrell {
namespace {

std::string_view orDollar(std::string_view currency) {
    return currency.empty() ? "USD" : currency;
}

QString caption(const SalesRowLite& row) {
    QStringList parts{lineLabel(row.kind, row.units < 0)};
    for (const std::string_view text : {row.country, row.productType}) {
        if (!text.empty()) {
            parts += shownText(text);
        }
    }
    return parts.join(captionJoiner());
}

}  // namespace

QString LineItemRow::copyText() const {
    return rowText({title, caption, price, amount});
}

LineItemRow lineItemRow(const Locale& locale, const SalesRowLite& row) {
    const Decimal amount = row.amount();
    const bool movesNoMoney = row.kind == ProductKind::update || row.kind == ProductKind::redownload;
    return {.title = shownText(row.title),
            .caption = caption(row),
            .price = fromUtf8(locale.count(row.units)) + QStringLiteral(" × ") +
                     shownText(locale.money(row.customerPrice, orDollar(row.customerCurrency))),
            .amount = shownText(locale.money(amount, orDollar(row.currency))),
            .spokenAmount = proceedsLabel() + QStringLiteral(", ") +
                            shownText(locale.spokenMoney(amount, orDollar(row.currency))),
            .isMuted = movesNoMoney || amount.isZero(),
            .isRefund = row.units < 0};
}

}  // namespace vantrell
