#include "reports/SalesParser.h"

#include "ReportCounts.h"
#include "ReportValues.h"

namespace vantrell {
namespace {

constexpr std::string_view salesMarker = "provider";

constexpr std::array<TextField<SalesRowView>, 16> textFields{{
    {"sku", &SalesRowView::sku},
    {"title", &SalesRowView::title},
    {"version", &SalesRowView::version},
    {"product_type_identifier", &SalesRowView::productType},
    {"parent_identifier", &SalesRowView::parentSKU},
    {"currency_of_proceeds", &SalesRowView::proceedsCurrency},
    {"customer_currency", &SalesRowView::customerCurrency},
    {"country_code", &SalesRowView::country},
    {"promo_code", &SalesRowView::promoCode},
    {"subscription", &SalesRowView::subscription},
    {"period", &SalesRowView::period},
    {"device", &SalesRowView::device},
    {"supported_platforms", &SalesRowView::platforms},
    {"proceeds_reason", &SalesRowView::proceedsReason},
    {"client", &SalesRowView::client},
    {"order_type", &SalesRowView::orderType},
}};

/// Reads a date column, whose cells are mostly the same from line to line.
class DateColumn {
  public:
    explicit DateColumn(std::size_t column) : column_(column) {}

    [[nodiscard]] std::optional<Instant> read(const Cells& cells) {
        const std::string_view text = cell(column_, cells);
        if (text != lastText_) {
            lastText_ = text;
            lastDate_ = parseReportDate(text);
        }
        return lastDate_;
    }

  private:
    std::size_t column_;
    std::string lastText_;
    std::optional<Instant> lastDate_;  // an empty text is no date
};

class SalesRowReader {
  public:
    using Row = SalesRowView;

    explicit SalesRowReader(const ReportColumns& columns)
        : texts_(columns, textFields),
          beginDate_(columns.indexOf("begin_date")),
          endDate_(columns.indexOf("end_date")),
          units_(columns.indexOf("units")),
          proceeds_(columns.indexOf("developer_proceeds")),
          price_(columns.indexOf("customer_price")),
          appleID_(columns.indexOf("apple_identifier")) {}

    /// False, with nothing appended, for a line without a begin date.
    bool append(const Cells& cells, std::vector<Row>& rows) {
        const auto beginDate = beginDate_.read(cells);
        if (!beginDate) {
            return false;
        }
        Row& row = rows.emplace_back();
        texts_.copy(cells, row);
        row.beginDate = *beginDate;
        row.endDate = endDate_.read(cells).value_or(*beginDate);
        row.units = counts_.read(cell(units_, cells));
        row.proceedsPerUnit = parseReportDecimal(cell(proceeds_, cells));
        row.customerPrice = parseReportDecimal(cell(price_, cells));
        row.appleID = parseAppleIdentifier(cell(appleID_, cells));
        return true;
    }

    [[nodiscard]] const ReportCounts& counts() const { return counts_; }

  private:
    ReportCounts counts_;
    TextColumns<Row, textFields.size()> texts_;
    DateColumn beginDate_;
    DateColumn endDate_;
    std::size_t units_;
    std::size_t proceeds_;
    std::size_t price_;
    std::size_t appleID_;
};

}  // namespace

ParsedSales parseSales(std::string_view text) {
    return readTable<SalesRowReader>(text, salesMarker);
}

std::unique_ptr<ReportReader<SalesRowView>> readSales(std::string body) {
    return std::make_unique<BodyReader<SalesRowReader>>(std::move(body), salesMarker);
}

}  // namespace vantrell
