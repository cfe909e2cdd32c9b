#include "sample/FinanceBody.h"

#include "sample/Payouts.h"
#include "sample/ReportTable.h"
#include "sample/SaleTerms.h"
#include "sample/Territories.h"

#include <map>

namespace vantrell::sample {

namespace {

constexpr std::string_view heading =
    "Start Date\tEnd Date\tUPC\tISRC/ISBN\tVendor Identifier\tQuantity\tPartner Share\tExtended Partner "
    "Share\t"
    "Partner Share Currency\tSales or Return\tApple Identifier\tArtist/Show/Developer/Author\tTitle\t"
    "Label/Studio/Network/Developer/Publisher\tGrid\tProduct Type Identifier\tISAN/Other Identifier\t"
    "Country Of Sale\tPre-order Flag\tPromo Code\tCustomer Price\tCustomer Currency";

struct Section {
    std::int64_t rows = 0;
    Money amount;
    std::int64_t units = 0;
};

/// What stays the same from line to line.
struct Dates {
    DateRange range;
    std::string start = reportDateCell(range.first);
    std::string end = reportDateCell(range.last);
};

void writeLine(ReportTable& table, const Item& item, const PayoutLine& line, const Dates& dates) {
    const auto& territory = territories()[line.territory];
    const auto digits = currencyNamed(territory.currency).digits;
    table.text(dates.start).text(dates.end).text("").text("").text(item.sku).number(line.quantity);
    table.money({line.share, digits}).money({line.extendedShare(), digits});
    table.text(territory.currency).text(line.isReturn ? "R" : "S").number(item.appleID).text("Brambleworks");
    table.text(item.titles[stepOn(item.titles, dates.range.last)].value).text("Brambleworks").text("");
    table.text(productType(item, Action::purchase)).text("").text(territory.code).text("").blank();
    table.money({line.isReturn ? -line.price : line.price, digits}).text(territory.currency).endLine();
}

void writeTotals(ReportTable& table, const std::map<std::string_view, Section>& sections) {
    for (const auto& [currency, section] : sections) {
        table.text("Total_Rows").number(section.rows).endLine();
        table.text("Total_Amount").money(section.amount).endLine();
        table.text("Total_Units").number(section.units).endLine();
    }
}

}  // namespace

std::string financeBody(const SampleAccount& account, const DateRange& range) {
    const Dates dates{range};
    ReportTable table{heading};
    std::map<std::string_view, Section> sections;
    for (const auto& line : payouts(account, range)) {
        writeLine(table, account.items()[line.item], line, dates);
        const auto& currency = currencyNamed(territories()[line.territory].currency);
        auto& section = sections[currency.code];
        section.rows += 1;
        section.amount = {section.amount.minor + line.extendedShare(), currency.digits};
        section.units += line.quantity;
    }
    writeTotals(table, sections);
    return std::move(table).take();
}

}  // namespace vantrell::sample
