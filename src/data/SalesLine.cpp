#include "data/SalesLine.h"

namespace vantrell {

SalesLine encoded(const ParsedSalesRow& row, LineTexts& texts) {
    texts.startLine();
    return {.figures = {.beginDate = row.beginDate,
                        .sku = texts.intern(row.sku),
                        .title = texts.intern(row.title),
                        .productType = texts.intern(row.productType),
                        .parentSKU = texts.intern(row.parentSKU),
                        .units = row.units,
                        .proceedsPerUnit = row.proceedsPerUnit,
                        .proceedsCurrency = texts.intern(row.proceedsCurrency),
                        .customerPrice = row.customerPrice,
                        .customerCurrency = texts.intern(row.customerCurrency),
                        .country = texts.intern(row.country),
                        .appleID = row.appleID},
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

ParsedSalesRow decoded(const SalesLine& line, const TextDictionary& texts) {
    const auto text = [&texts](TextID id) { return std::string(texts.text(id)); };
    const SalesFigures& figures = line.figures;
    return {.beginDate = figures.beginDate,
            .endDate = line.endDate,
            .sku = text(figures.sku),
            .title = text(figures.title),
            .version = text(line.version),
            .productType = text(figures.productType),
            .parentSKU = text(figures.parentSKU),
            .units = figures.units,
            .proceedsPerUnit = figures.proceedsPerUnit,
            .proceedsCurrency = text(figures.proceedsCurrency),
            .customerPrice = figures.customerPrice,
            .customerCurrency = text(figures.customerCurrency),
            .country = text(figures.country),
            .appleID = figures.appleID,
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
