#include "LineCoding.h"

namespace vantrell {
namespace {

/// Of the parts of a stored line the one that a column lies in.
template <typename Column, typename Line, typename Offer>
auto& holder(Line& line, Offer& offer) {
    if constexpr (std::is_same_v<typename std::remove_cvref_t<Column>::Owner, StoredOffer>) {
        return offer;
    } else {
        return line;
    }
}

template <typename Columns, typename Row, typename Texts, typename Line, typename Offer>
void encode(const Columns& columns, const Row& row, Texts& texts, Line& line, Offer& offer) {
    forEachNumbered(columns, [&](const auto& column, auto number) {
        using Column = decltype(column);
        if constexpr (std::remove_cvref_t<Column>::isOfRow) {
            auto& value = holder<Column>(line, offer).*column.member;
            if constexpr (std::is_same_v<StorageOf<Column>, storage::TextNumber>) {
                value = texts.template intern<number()>(row.*column.inRow);
            } else {
                value = row.*column.inRow;
            }
        }
    });
}

template <typename Row, typename Columns, typename Line, typename Offer>
Row decode(const Columns& columns, const TextDictionary& texts, const Line& line, const Offer& offer) {
    Row row;
    forEach(columns, [&](const auto& column) {
        using Column = decltype(column);
        if constexpr (std::remove_cvref_t<Column>::isOfRow) {
            const auto& value = holder<Column>(line, offer).*column.member;
            if constexpr (std::is_same_v<StorageOf<Column>, storage::TextNumber>) {
                row.*column.inRow = texts.text(value);
            } else {
                row.*column.inRow = value;
            }
        }
    });
    return row;
}

}  // namespace

SalesLine encoded(const SalesRowView& row, SalesTexts& texts, OfferDictionary& offers) {
    SalesLine line;
    StoredOffer offer;
    encode(Layout<SalesLine>::shown, row, texts, line, offer);
    line.offer = offers.intern(offer);
    return line;
}

FinanceLine encoded(const ParsedFinanceRow& row, FinanceTexts& texts) {
    FinanceLine line;
    encode(Layout<FinanceLine>::shown, row, texts, line, line);
    return line;
}

ParsedSalesRow decoded(const SalesLine& line, const TextDictionary& texts, const OfferDictionary& offers) {
    return decode<ParsedSalesRow>(salesColumns<std::string>, texts, line, offers.offer(line.offer));
}

ParsedFinanceRow decoded(const FinanceLine& line, const TextDictionary& texts) {
    return decode<ParsedFinanceRow>(Layout<FinanceLine>::shown, texts, line, line);
}

}  // namespace vantrell
