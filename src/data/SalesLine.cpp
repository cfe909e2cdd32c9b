#include "data/SalesLine.h"

namespace vantrell {

SalesLine encoded(const SalesRowView& row, LineTexts& texts, OfferDictionary& offers) {
    texts.startLine();
    const StoredOffer offer{.sku = texts.intern(row.sku),
                            .title = texts.intern(row.title),
                            .productType = texts.intern(row.productType),
                            .parentSKU = texts.intern(row.parentSKU),
                            .proceedsPerUnit = row.proceedsPerUnit,
                            .proceedsCurrency = texts.intern(row.proceedsCurrency),
                            .customerPrice = row.customerPrice,
                            .customerCurrency = texts.intern(row.customerCurrency),
                            .appleID = row.appleID};
    return {.figures = {.beginDate = row.beginDate,
                        .offer = offers.intern(offer),
                        .units = row.units,
                        .country = texts.intern(row.country)},
            .endDate = row.endDate,
            .version = texts.intern(row.version),
            .promoCode = texts.intern(row.promoCode),
            .subscription = texts.intern(row.subscription),
            .period = texts.intern(row.period),
            .device = texts.intern(row.device),
            .platforms = texts.intern(row.platforms),
            .proceedsReason = texts.intern(row.proceedsReason),
            .client = texts.intern(row.client),
            .orderType = texts.intern(row.orderType)};
}

ParsedSalesRow decoded(const SalesLine& line, const TextDictionary& texts, const OfferDictionary& offers) {
    const auto text = [&texts](TextID id) { return std::string(texts.text(id)); };
    const StoredOffer& offer = offers.offer(line.figures.offer);
    return {.beginDate = line.figures.beginDate,
            .endDate = line.endDate,
            .sku = text(offer.sku),
            .title = text(offer.title),
            .version = text(line.version),
            .productType = text(offer.productType),
            .parentSKU = text(offer.parentSKU),
            .units = line.figures.units,
            .proceedsPerUnit = offer.proceedsPerUnit,
            .proceedsCurrency = text(offer.proceedsCurrency),
            .customerPrice = offer.customerPrice,
            .customerCurrency = text(offer.customerCurrency),
            .country = text(line.figures.country),
            .appleID = offer.appleID,
            .promoCode = text(line.promoCode),
            .subscription = text(line.subscription),
            .period = text(line.period),
            .device = text(line.device),
            .platforms = text(line.platforms),
            .proceedsReason = text(line.proceedsReason),
            .client = text(line.client),
            .orderType = text(line.orderType)};
}

}  // namespace vantrell
