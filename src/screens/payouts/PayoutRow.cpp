#include "screens/payouts/PayoutRow.h"

#include "screens/components/CurrencyBreakdownList.h"
#include "screens/components/RowText.h"
#include "screens/components/ShownText.h"
#include "screens/words/SalesWords.h"
#include "screens/words/UnitsCaption.h"

#include <QCoreApplication>

namespace vantrell {
namespace {

QString datesText(const FigureContext& context, const FinancePeriodStat& period) {
    if (!period.start || !period.end) {
        return {};
    }
    const auto text = [&](Instant instant) {
        return fromUtf8(context.locale.date(context.store.calendar().dateAt(instant)));
    };
    return text(*period.start) + QStringLiteral(" – ") + text(*period.end);
}

QString unitsText(const Locale& locale, const FinancePeriodStat& period) {
    const auto counted = [&](std::int64_t count, const char* words) {
        return QCoreApplication::translate("PayoutRow", words, nullptr, pluralNumber(count))
            .arg(fromUtf8(locale.count(count)));
    };
    QStringList parts{counted(period.units, QT_TRANSLATE_N_NOOP("PayoutRow", "%1 units"))};
    if (period.returns != 0) {
        parts += counted(period.returns, QT_TRANSLATE_N_NOOP("PayoutRow", "%1 returns"));
    }
    return parts.join(captionJoiner());
}

QVariantList currencyRows(const FigureContext& context, const AmountsByCurrency& byCurrency) {
    QVariantList rows;
    for (BreakdownRow row : breakdownRows(context, byCurrency)) {
        // The list says nothing in place of an amount without a rate.
        if (row.hasNoRate) {
            row.converted.clear();
        }
        rows += QVariant::fromValue(row);
    }
    return rows;
}

}  // namespace

QString PayoutRow::copyText() const {
    return rowText({title, dates, units, money.text});
}

QString PayoutRow::spokenState() const {
    return isExpanded ? QCoreApplication::translate("PayoutRow", "Expanded")
                      : QCoreApplication::translate("PayoutRow", "Collapsed");
}

PayoutRow payoutRow(const FigureContext& context, const FinancePeriodStat& period, bool isExpanded) {
    return {.title = QCoreApplication::translate("PayoutRow", "Fiscal %1").arg(shownText(period.label)),
            .dates = datesText(context, period),
            .units = unitsText(context.locale, period),
            .money = moneyValue(context, period.byCurrency, QCoreApplication::translate("PayoutRow", "Paid")),
            .isExpanded = isExpanded,
            .currencies = isExpanded ? currencyRows(context, period.byCurrency) : QVariantList()};
}

}  // namespace vantrell
