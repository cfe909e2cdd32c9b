#include "reports/FinanceParser.h"

#include "ReportCounts.h"
#include "ReportValues.h"

namespace vantrell {
namespace {

constexpr std::string_view financeMarker = "start_date";

constexpr std::array<TextField<ParsedFinanceRow>, 7> textFields{{
    {"vendor_identifier", &ParsedFinanceRow::vendorIdentifier},
    {"title", &ParsedFinanceRow::title},
    {"product_type_identifier", &ParsedFinanceRow::productType},
    {"partner_share_currency", &ParsedFinanceRow::partnerShareCurrency},
    {"country_of_sale", &ParsedFinanceRow::country},
    {"promo_code", &ParsedFinanceRow::promoCode},
    {"customer_currency", &ParsedFinanceRow::customerCurrency},
}};

class FinanceRowReader {
  public:
    using Row = ParsedFinanceRow;

    explicit FinanceRowReader(const ReportColumns& columns)
        : texts_(columns, textFields),
          startDate_(columns.indexOf("start_date")),
          endDate_(columns.indexOf("end_date")),
          quantity_(columns.indexOf("quantity")),
          share_(columns.indexOf("partner_share")),
          extendedShare_(columns.indexOf("extended_partner_share")),
          sale_(columns.indexOf("sale_or_return")),
          sales_(columns.indexOf("sales_or_return")),
          appleID_(columns.indexOf("apple_identifier")),
          price_(columns.indexOf("customer_price")) {}

    /// False, with nothing appended, for a heading, a total or any other line that begins with no date.
    bool append(const Cells& cells, std::vector<Row>& rows) {
        if (!parseReportDate(cell(0, cells))) {
            return false;
        }
        Row& row = rows.emplace_back();
        texts_.copy(cells, row);
        row.startDate = parseReportDate(cell(startDate_, cells)).value_or(distantPast);
        row.endDate = parseReportDate(cell(endDate_, cells)).value_or(distantPast);
        row.quantity = counts_.read(cell(quantity_, cells));
        row.partnerShare = parseReportDecimal(cell(share_, cells));
        row.extendedPartnerShare = parseReportDecimal(cell(extendedShare_, cells));
        if (row.extendedPartnerShare.isZero()) {
            row.extendedPartnerShare = row.partnerShare * Decimal(row.quantity);
        }
        const std::string_view sale = cell(sale_, cells);
        row.saleOrReturn = sale.empty() ? cell(sales_, cells) : sale;
        row.appleID = parseAppleIdentifier(cell(appleID_, cells));
        row.customerPrice = parseReportDecimal(cell(price_, cells));
        return true;
    }

    [[nodiscard]] const ReportCounts& counts() const { return counts_; }

  private:
    ReportCounts counts_;
    TextColumns<Row, textFields.size()> texts_;
    std::size_t startDate_;
    std::size_t endDate_;
    std::size_t quantity_;
    std::size_t share_;
    std::size_t extendedShare_;
    std::size_t sale_;
    std::size_t sales_;
    std::size_t appleID_;
    std::size_t price_;
};

}  // namespace

ParsedFinance parseFinance(std::string_view text) {
    return readTable<FinanceRowReader>(text, financeMarker);
}

std::unique_ptr<ReportReader<ParsedFinanceRow>> readFinance(std::string body) {
    return std::make_unique<BodyReader<FinanceRowReader>>(std::move(body), financeMarker);
}

}  // namespace vantrell
