#pragma once

#include "Columns.h"
#include "Storage.h"
#include "data/StoreParts.h"

#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>

namespace vantrell {

/// How each kind of record lies in its table, and by which view it is shown: the one place that names
/// columns. With `damage`, which says that rows of it can't be read, these are checked as well.
template <typename Record>
struct Layout;

/// A text of the dictionary.
struct StoredText {
    std::string value;
};

template <>
struct Layout<StoredText> {
    static constexpr std::string_view table = "text";
    static constexpr std::tuple columns{column<storage::ForeignText>("value", &StoredText::value)};
};

template <>
struct Layout<SalesReport> {
    static constexpr std::string_view table = "sales_report";
    static constexpr std::string_view view = "SalesReport";
    static constexpr std::tuple columns{column<storage::Text>("accountID", &SalesReport::accountID),
                                        column<storage::Text>("frequencyRaw", &SalesReport::frequencyRaw),
                                        column<storage::Text>("reportDate", &SalesReport::reportDate),
                                        column<storage::Text>("statusRaw", &SalesReport::statusRaw),
                                        column<storage::Number>("rowCount", &SalesReport::rowCount),
                                        column<storage::Message>("message", &SalesReport::message),
                                        column<storage::Microseconds>("fetchedAt", &SalesReport::fetchedAt)};
};

template <>
struct Layout<FinanceReport> {
    static constexpr std::string_view table = "finance_report";
    static constexpr std::string_view view = "FinanceReport";
    static constexpr std::tuple columns{
        column<storage::Text>("accountID", &FinanceReport::accountID),
        column<storage::Text>("region", &FinanceReport::region),
        column<storage::Text>("fiscalPeriod", &FinanceReport::fiscalPeriod),
        column<storage::Text>("statusRaw", &FinanceReport::statusRaw),
        column<storage::Number>("rowCount", &FinanceReport::rowCount),
        column<storage::Message>("message", &FinanceReport::message),
        column<storage::Microseconds>("fetchedAt", &FinanceReport::fetchedAt),
        column<storage::OptionalMicroseconds>("startDate", &FinanceReport::startDate),
        column<storage::OptionalMicroseconds>("endDate", &FinanceReport::endDate)};
};

template <>
struct Layout<RateSet> {
    static constexpr std::string_view table = "rate_set";
    static constexpr std::string_view view = "RateSet";
    static constexpr std::tuple columns{column<storage::Text>("base", &RateSet::base),
                                        column<storage::Microseconds>("fetchedAt", &RateSet::fetchedAt),
                                        column<storage::RatesObject>("rates", &RateSet::rates)};
};

template <>
struct Layout<SyncLogEntry> {
    static constexpr std::string_view table = "sync_log";
    static constexpr std::string_view view = "SyncLogEntry";
    static constexpr std::tuple columns{column<storage::Microseconds>("date", &SyncLogEntry::date),
                                        column<storage::Text>("key", &SyncLogEntry::key),
                                        column<storage::Text>("outcome", &SyncLogEntry::outcome),
                                        column<storage::Message>("message", &SyncLogEntry::message)};
};

/// A sales row in the order of its view. What belongs to the offer is stored with it.
template <typename RowText>
inline constexpr std::tuple salesColumns{
    column<storage::Seconds>("beginDate", &SalesLine::beginDate, &SalesRowOf<RowText>::beginDate),
    column<storage::OfferNumber>("offer", &SalesLine::offer),
    column<storage::Seconds>("endDate", &SalesLine::endDate, &SalesRowOf<RowText>::endDate),
    column<storage::TextNumber>("sku", &StoredOffer::sku, &SalesRowOf<RowText>::sku),
    column<storage::TextNumber>("title", &StoredOffer::title, &SalesRowOf<RowText>::title),
    column<storage::TextNumber>("version", &SalesLine::version, &SalesRowOf<RowText>::version),
    column<storage::TextNumber>("productType", &StoredOffer::productType, &SalesRowOf<RowText>::productType),
    column<storage::TextNumber>("parentSKU", &StoredOffer::parentSKU, &SalesRowOf<RowText>::parentSKU),
    column<storage::Number>("units", &SalesLine::units, &SalesRowOf<RowText>::units),
    column<storage::Packed>("proceedsPerUnit", &StoredOffer::proceedsPerUnit,
                            &SalesRowOf<RowText>::proceedsPerUnit),
    column<storage::TextNumber>("proceedsCurrency", &StoredOffer::proceedsCurrency,
                                &SalesRowOf<RowText>::proceedsCurrency),
    column<storage::Packed>("customerPrice", &StoredOffer::customerPrice,
                            &SalesRowOf<RowText>::customerPrice),
    column<storage::TextNumber>("customerCurrency", &StoredOffer::customerCurrency,
                                &SalesRowOf<RowText>::customerCurrency),
    column<storage::TextNumber>("country", &SalesLine::country, &SalesRowOf<RowText>::country),
    column<storage::Number>("appleID", &StoredOffer::appleID, &SalesRowOf<RowText>::appleID),
    column<storage::TextNumber>("promoCode", &SalesLine::promoCode, &SalesRowOf<RowText>::promoCode),
    column<storage::TextNumber>("subscription", &SalesLine::subscription, &SalesRowOf<RowText>::subscription),
    column<storage::TextNumber>("period", &SalesLine::period, &SalesRowOf<RowText>::period),
    column<storage::TextNumber>("device", &SalesLine::device, &SalesRowOf<RowText>::device),
    column<storage::TextNumber>("platforms", &SalesLine::platforms, &SalesRowOf<RowText>::platforms),
    column<storage::TextNumber>("proceedsReason", &SalesLine::proceedsReason,
                                &SalesRowOf<RowText>::proceedsReason),
    column<storage::TextNumber>("client", &SalesLine::client, &SalesRowOf<RowText>::client),
    column<storage::TextNumber>("orderType", &SalesLine::orderType, &SalesRowOf<RowText>::orderType)};

template <>
struct Layout<StoredOffer> {
    static constexpr std::string_view table = "sales_offer";
    static constexpr const char* damage = "products of sales reports can't be read";
    static constexpr auto columns = columnsOf<StoredOffer>(salesColumns<std::string_view>);
};

/// Of lines also the table of the ranges that belong to one report, and what names that report. The columns
/// of the figures come first, so that a reload stops reading there.
template <>
struct Layout<SalesLine> {
    static constexpr std::string_view table = "sales_line";
    static constexpr std::string_view batches = "sales_batch";
    static constexpr std::string_view group = "frequencyRaw";
    static constexpr std::string_view label = "reportDate";
    static constexpr std::string_view view = "SalesRow";
    static constexpr std::string_view join = " LEFT JOIN sales_offer AS offer ON offer.id = line.offer";
    static constexpr const char* damage = "lines of sales reports refer to what is missing";
    static constexpr auto shown = salesColumns<std::string_view>;
    static constexpr auto figures = columnsOf<SalesFigures>(shown);
    static constexpr auto columns = std::tuple_cat(figures, columnsOf<SalesLine>(shown));
};

template <>
struct Layout<FinanceLine> {
    static constexpr std::string_view table = "finance_line";
    static constexpr std::string_view batches = "finance_batch";
    static constexpr std::string_view group = "region";
    static constexpr std::string_view label = "fiscalPeriod";
    static constexpr std::string_view view = "FinanceRow";
    static constexpr std::string_view join = "";
    static constexpr const char* damage = "lines of finance reports can't be read";
    static constexpr std::tuple columns{
        column<storage::Seconds>("startDate", &FinanceLine::startDate, &ParsedFinanceRow::startDate),
        column<storage::Seconds>("endDate", &FinanceLine::endDate, &ParsedFinanceRow::endDate),
        column<storage::TextNumber>("vendorIdentifier", &FinanceLine::vendorIdentifier,
                                    &ParsedFinanceRow::vendorIdentifier),
        column<storage::TextNumber>("title", &FinanceLine::title, &ParsedFinanceRow::title),
        column<storage::TextNumber>("productType", &FinanceLine::productType, &ParsedFinanceRow::productType),
        column<storage::Number>("quantity", &FinanceLine::quantity, &ParsedFinanceRow::quantity),
        column<storage::Packed>("partnerShare", &FinanceLine::partnerShare, &ParsedFinanceRow::partnerShare),
        column<storage::Packed>("extendedPartnerShare", &FinanceLine::extendedPartnerShare,
                                &ParsedFinanceRow::extendedPartnerShare),
        column<storage::TextNumber>("partnerShareCurrency", &FinanceLine::partnerShareCurrency,
                                    &ParsedFinanceRow::partnerShareCurrency),
        column<storage::TextNumber>("saleOrReturn", &FinanceLine::saleOrReturn,
                                    &ParsedFinanceRow::saleOrReturn),
        column<storage::Number>("appleID", &FinanceLine::appleID, &ParsedFinanceRow::appleID),
        column<storage::TextNumber>("country", &FinanceLine::country, &ParsedFinanceRow::country),
        column<storage::TextNumber>("promoCode", &FinanceLine::promoCode, &ParsedFinanceRow::promoCode),
        column<storage::Packed>("customerPrice", &FinanceLine::customerPrice,
                                &ParsedFinanceRow::customerPrice),
        column<storage::TextNumber>("customerCurrency", &FinanceLine::customerCurrency,
                                    &ParsedFinanceRow::customerCurrency)};
    static constexpr auto shown = columns;
    static constexpr auto figures = columns;
};

/// The layout of what a part of the store holds.
template <typename Part>
struct LayoutOf;
template <>
struct LayoutOf<TextDictionary> : Layout<StoredText> {};
template <>
struct LayoutOf<OfferDictionary> : Layout<StoredOffer> {};
template <typename Record>
struct LayoutOf<RecordTable<Record>> : Layout<Record> {};
template <typename Line>
struct LayoutOf<LineTable<Line>> : Layout<Line> {};

/// Calls `visit` with the layout of each part.
template <typename Parts, typename Visit>
void forEachLayout(Visit visit) {
    [&visit]<typename... Part>(std::type_identity<OneOfEach<Part...>>) {
        (visit(LayoutOf<Part>()), ...);
    }(std::type_identity<Parts>());
}

}  // namespace vantrell
