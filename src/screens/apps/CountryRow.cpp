#include "screens/apps/CountryRow.h"

#include "screens/components/RowText.h"
#include "screens/components/ShownText.h"
#include "screens/words/SalesWords.h"

namespace vantrell {

QString CountryRow::copyText() const {
    return rowText({title, amount});
}

CountryRow countryRow(const FigureContext& context, const CountryStat& country) {
    const std::string& currency = context.store.displayCurrency();
    return {.title = shownText(context.locale.regionName(country.country)),
            .amount = shownText(context.locale.money(country.amount, currency)),
            .spokenAmount = proceedsLabel() + QStringLiteral(", ") +
                            shownText(context.locale.spokenMoney(country.amount, currency))};
}

}  // namespace vantrell
