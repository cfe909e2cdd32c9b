#include "screens/components/MoneyValue.h"

#include "screens/components/ShownText.h"

#include <QCoreApplication>
#include <QStringList>

namespace vantrell {
namespace {

QString warningText(const std::vector<std::string>& withoutRate) {
    if (withoutRate.empty()) {
        return {};
    }
    QStringList codes;
    for (const std::string& code : withoutRate) {
        codes += shownText(code);
    }
    return QCoreApplication::translate("MoneyValue", "No exchange rate for: %1")
        .arg(codes.join(QStringLiteral(", ")));
}

}  // namespace

bool MoneyValue::operator==(const MoneyValue& other) const {
    const bool hasSameAmounts = byCurrency == other.byCurrency ||
                                (byCurrency && other.byCurrency && *byCurrency == *other.byCurrency);
    return hasSameAmounts && text == other.text && spoken == other.spoken && warning == other.warning;
}

MoneyValue moneyValue(const FigureContext& context, const AmountsByCurrency& byCurrency,
                      const QString& label) {
    const CurrencyConverter& converter = context.store.converter();
    const ConvertedTotal total = converter.total(byCurrency);
    const QString spoken = shownText(context.locale.spokenMoney(total.amount, converter.displayCurrency));
    return {.text = shownText(context.locale.money(total.amount, converter.displayCurrency)),
            .spoken = label.isEmpty() ? spoken : label + QStringLiteral(", ") + spoken,
            .warning = warningText(total.withoutRate),
            .byCurrency = std::make_shared<const AmountsByCurrency>(byCurrency)};
}

}  // namespace vantrell
