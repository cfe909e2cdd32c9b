#include "data/FinanceLine.h"

namespace vantrell {

FinanceLine encoded(const ParsedFinanceRow& row, LineTexts& texts) {
    texts.startLine();
    return {.startDate = row.startDate,
            .endDate = row.endDate,
            .vendorIdentifier = texts.intern(row.vendorIdentifier),
            .title = texts.intern(row.title),
            .productType = texts.intern(row.productType),
            .quantity = row.quantity,
            .partnerShare = row.partnerShare,
            .extendedPartnerShare = row.extendedPartnerShare,
            .partnerShareCurrency = texts.intern(row.partnerShareCurrency),
            .saleOrReturn = texts.intern(row.saleOrReturn),
            .appleID = row.appleID,
            .country = texts.intern(row.country),
            .promoCode = texts.intern(row.promoCode),
            .customerPrice = row.customerPrice,
            .customerCurrency = texts.intern(row.customerCurrency)};
}

ParsedFinanceRow decoded(const FinanceLine& line, const TextDictionary& texts) {
    const auto text = [&texts](TextID id) { return std::string(texts.text(id)); };
    return {.startDate = line.startDate,
            .endDate = line.endDate,
            .vendorIdentifier = text(line.vendorIdentifier),
            .title = text(line.title),
            .productType = text(line.productType),
            .quantity = line.quantity,
            .partnerShare = line.partnerShare,
            .extendedPartnerShare = line.extendedPartnerShare,
            .partnerShareCurrency = text(line.partnerShareCurrency),
            .saleOrReturn = text(line.saleOrReturn),
            .appleID = line.appleID,
            .country = text(line.country),
            .promoCode = text(line.promoCode),
            .customerPrice = line.customerPrice,
            .customerCurrency = text(line.customerCurrency)};
}

}  // namespace vantrell
